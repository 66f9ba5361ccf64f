#include "interpreter/tool_commands.h"

#include "base/text_primitives.h"

namespace tarnwell {

namespace {

constexpr qsizetype kShortDeviceLength = 5;

QString installWord(bool isDvd) {
    return isDvd ? QStringLiteral("inject_dvd") : QStringLiteral("inject_cd");
}

} // namespace

QString QuoteArg(const QString& value) {
    return value.contains(' ') ? '"' + value + '"' : value;
}

QString LocalDeviceLong(const QString& entry) {
    return entry.left(InStr(entry, ":"));
}

QString LocalDeviceShort(const QString& entry) {
    return entry.left(kShortDeviceLength);
}

QString QueryCommand() {
    return "query";
}

QString GameListCommand(const QString& device) {
    return "tarn_toc " + device;
}

QString DriveInfoCommand(const QString& drive) {
    return "cdvd_info2 " + drive;
}

QString ImageInfoCommand(const QString& path) {
    return "cdvd_info2 \"" + path + '"';
}

QString InstallCommand(const Installation& game) {
    const QString command = installWord(game.type == QLatin1String("DVD-ROM"));
    // Two quotes hold the place of a missing startup file, so that the flags stay in theirs.
    const bool placeholder = game.startup.isEmpty() && !game.flags.isEmpty();
    const QStringList words{command,
                            QuoteArg(game.device),
                            QuoteArg(game.name),
                            QuoteArg(game.source),
                            placeholder ? QStringLiteral("\"\"") : game.startup,
                            game.flags};
    return RTrim(words.join(' '));
}

QString MakeImageCommand(const QString& drive, const QString& path) {
    return "dump " + drive + ' ' + QuoteArg(path);
}

QString CopyToFileCommand(const QString& device, const QString& name, const QString& path) {
    return "extract " + QuoteArg(device) + ' ' + QuoteArg(name) + ' ' + QuoteArg(path);
}

QString CopyToDeviceCommand(const QString& type, const QString& target, const QString& name,
                            const QString& device) {
    return installWord(type == QLatin1String("DVD")) + ' ' + QuoteArg(target) + ' ' + QuoteArg(name) + ' ' +
           QuoteArg(name + '@' + device);
}

QString DeleteCommand(const QString& device, const QString& name) {
    return "delete " + device + ' ' + QuoteArg(name);
}

QString RenameCommand(const QString& device, const QString& oldName, const QString& newName) {
    return "modify " + device + ' ' + QuoteArg(oldName) + ' ' + QuoteArg(newName);
}

QString PowerOffCommand(const QString& address) {
    return "poweroff " + address;
}

QString FormatCommand(const QString& device) {
    return "initialize " + device;
}

QString BackupTocCommand(const QString& device, const QString& path) {
    return "backup_toc " + device + ' ' + QuoteArg(path);
}

QString RestoreTocCommand(const QString& device, const QString& path) {
    return "restore_toc " + device + ' ' + QuoteArg(path);
}

} // namespace tarnwell

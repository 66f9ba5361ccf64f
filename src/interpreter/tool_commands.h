#pragma once

#include <QString>

/// The tool's command language: every command text that the program sends, without the tool's path, and the
/// arguments that go into it.
namespace tarnwell {

/// In double quotes if it holds a blank. Nothing inside is escaped: a name with a quote of its own breaks the
/// command.
QString QuoteArg(const QString& value);

/// The start of a disk's entry. The tool knows both forms, and each command keeps to its own: the long one
/// goes up to the first colon, the short one is five characters, so that hdd10: loses its colon.
QString LocalDeviceLong(const QString& entry);
QString LocalDeviceShort(const QString& entry);

/// A game to install: `type` as the list of types shows it, `source` an image or a drive.
struct Installation {
    QString type, device, name, source, startup, flags;
};

QString QueryCommand();
QString GameListCommand(const QString& device);
QString DriveInfoCommand(const QString& drive);
QString ImageInfoCommand(const QString& path);
QString InstallCommand(const Installation& game);
/// `drive` as ResolveOpticalDrive gives it.
QString MakeImageCommand(const QString& drive, const QString& path);
QString CopyToFileCommand(const QString& device, const QString& name, const QString& path);
/// Installs a game of `device` onto `target`; `type` is the word that the list of games shows.
QString CopyToDeviceCommand(const QString& type, const QString& target, const QString& name,
                            const QString& device);
QString DeleteCommand(const QString& device, const QString& name);
QString RenameCommand(const QString& device, const QString& oldName, const QString& newName);
QString PowerOffCommand(const QString& address);
QString FormatCommand(const QString& device);
QString BackupTocCommand(const QString& device, const QString& path);
QString RestoreTocCommand(const QString& device, const QString& path);

} // namespace tarnwell

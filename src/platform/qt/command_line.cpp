#include "platform/qt/command_line.h"

#include <QFileInfo>

namespace tarnwell {

namespace {

/// Windows drops blanks and dots at the end of a path, and takes a step back without a look at the folder
/// that it steps out of: with them an argument could name a program that nobody meant.
bool isPlain(const QString& path) {
    if (path.isEmpty() || path.endsWith(u' ') || path.endsWith(u'.'))
        return false;
    const QStringList steps = QString(path).replace(u'\\', u'/').split(u'/');
    return !steps.contains(QLatin1String(".."));
}

} // namespace

std::optional<SplitCommand> splitCommandLine(const QString& commandLine) {
    for (qsizetype end = commandLine.size(); end > 0; end = commandLine.lastIndexOf(u' ', end - 1)) {
        const QString program = commandLine.left(end);
        if (isPlain(program) && QFileInfo(program).isFile())
            return SplitCommand{program, commandLine.mid(end)};
    }
    return std::nullopt;
}

} // namespace tarnwell

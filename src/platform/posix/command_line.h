#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarnwell {

struct SplitCommand {
    QString program; ///< as it stands in the command line
    QStringList arguments;
};

/// Splits a command line whose program is not quoted though its path may hold blanks: the program is the
/// shortest beginning, up to a blank, that names a file (a folder is none). Nothing if no beginning does.
std::optional<SplitCommand> splitCommandLine(const QString& commandLine);

/// Splits arguments as the tool does on Windows: blanks and tabs part them, double quotes group, also in the
/// middle of a word and up to the end if they are not closed, "" alone is an empty argument, and nothing is
/// escaped.
QStringList splitArguments(const QString& text);

} // namespace tarnwell

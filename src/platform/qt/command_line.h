#pragma once

#include <QString>

#include <optional>

namespace tarnwell {

struct SplitCommand {
    QString program;   ///< as it stands in the command line
    QString arguments; ///< all that stands behind it, the blank in front included
};

/// Splits a command line whose program is not quoted though its path may hold blanks: the program is the
/// longest beginning, up to a blank, that names a file (a folder is none). Nothing if no beginning does.
std::optional<SplitCommand> splitCommandLine(const QString& commandLine);

} // namespace tarnwell

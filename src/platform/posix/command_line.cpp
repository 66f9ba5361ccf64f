#include "platform/posix/command_line.h"

#include <QFileInfo>

namespace tarnwell {

std::optional<SplitCommand> splitCommandLine(const QString& commandLine) {
    for (qsizetype end = 0; end < commandLine.size(); ++end) {
        end = commandLine.indexOf(u' ', end);
        if (end < 0) {
            end = commandLine.size();
        }
        const QString program = commandLine.left(end);
        if (QFileInfo(program).isFile()) {
            return SplitCommand{program, splitArguments(commandLine.mid(end))};
        }
    }
    return std::nullopt;
}

QStringList splitArguments(const QString& text) {
    QStringList arguments;
    QString word;
    bool inWord = false;
    bool inQuotes = false;
    const auto endWord = [&] {
        if (inWord) {
            arguments += word;
            word.clear();
            inWord = false;
        }
    };
    for (const QChar c : text) {
        if (c == u'"') {
            inQuotes = !inQuotes;
            inWord = true;
        } else if (!inQuotes && (c == u' ' || c == u'\t')) {
            endWord();
        } else {
            word += c;
            inWord = true;
        }
    }
    endWord();
    return arguments;
}

} // namespace tarnwell

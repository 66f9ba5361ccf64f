#include "platform/posix/arguments.h"

namespace tarnwell {

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

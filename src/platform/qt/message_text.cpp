#include "platform/qt/message_text.h"

#include <algorithm>

namespace tarnwell {

namespace {

constexpr qsizetype kMostLines = 20;
constexpr qsizetype kMostCharacters = 1000;
/// A box breaks its lines at blanks only; a longer word (a path) would widen the box instead.
constexpr qsizetype kLongestWord = 60;

constexpr QChar kEllipsis(0x2026);
constexpr QChar kInvisibleBreak(0x200B);

QString beginning(const QString& text) {
    qsizetype end = -1;
    for (qsizetype line = 0; line < kMostLines; ++line) {
        end = text.indexOf(u'\n', end + 1);
        if (end < 0) {
            break;
        }
    }
    return text.left(end < 0 ? kMostCharacters : std::min(end, kMostCharacters));
}

QString withBreaksInLongWords(const QString& text) {
    QString result;
    qsizetype wordLength = 0;
    for (const QChar c : text) {
        if (c.isSpace()) {
            wordLength = 0;
        } else if (wordLength >= kLongestWord && !c.isLowSurrogate()) {
            result += kInvisibleBreak;
            wordLength = 0;
        }
        result += c;
        ++wordLength;
    }
    return result;
}

} // namespace

MessageText fitMessageText(const QString& text) {
    const QString start = beginning(text);
    if (start.size() == text.size()) {
        return {withBreaksInLongWords(text), {}};
    }
    return {withBreaksInLongWords(start) + u'\n' + kEllipsis, text};
}

} // namespace tarnwell

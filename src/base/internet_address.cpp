#include "base/internet_address.h"

#include <QStringList>

#include <algorithm>

namespace tarnwell {

namespace {

constexpr qsizetype kMostParts = 4;
constexpr quint32 kLargestByte = 0xFF;

QString untilBlank(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace()) {
            return text.left(i);
        }
    }
    return text;
}

bool isHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

std::optional<quint32> parsePart(const QString& part) {
    const bool hexadecimal = part.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    const QString digits = hexadecimal ? part.mid(2) : part;
    const int base = hexadecimal ? 16 : part.startsWith(u'0') ? 8 : 10;
    // The conversion alone would take signs as well.
    bool isNumber = std::all_of(digits.begin(), digits.end(), isHexDigit);
    const quint32 value = isNumber ? digits.toUInt(&isNumber, base) : 0;
    return isNumber ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<quint32> parseInternetAddress(const QString& text) {
    const QStringList parts = untilBlank(text).split(u'.');
    if (parts.size() > kMostParts) {
        return std::nullopt;
    }
    quint32 address = 0;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const std::optional<quint32> value = parsePart(parts[i]);
        const bool isLast = i + 1 == parts.size();
        const quint32 largest = isLast ? 0xFFFFFFFF >> (8 * i) : kLargestByte;
        if (!value || *value > largest) {
            return std::nullopt;
        }
        address |= isLast ? *value : *value << (8 * (3 - i));
    }
    return address;
}

} // namespace tarnwell

#include "base/text_primitives.h"

#include "base/fault.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace tarnwell {

namespace {

const char kUnreadableLine[] = "A line that tarnwell printed could not be understood. "
                               "Turn on View Tarnwell Activity to see what it printed.";

/// Doubles are exact to this many decimal digits; what stands behind them is noise.
constexpr int kReliableDigits = 15;

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isSkipped(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n';
}

bool isSign(QChar character) {
    return character == u'+' || character == u'-';
}

bool isExponentMark(QChar character) {
    return character == u'e' || character == u'E' || character == u'd' || character == u'D';
}

/// What `text` begins with of what numbers are made of, as C++ spells it; a number may end before that does.
std::string numberAtStart(const QString& text) {
    std::string number;
    QChar previous;
    for (const QChar character : text) {
        if (isSkipped(character))
            continue;
        const bool mayBeSigned = previous.isNull() || isExponentMark(previous);
        if (isDigit(character) || character == u'.') {
            number += character.toLatin1();
        } else if (isSign(character) && mayBeSigned) {
            // from_chars takes no plus in front of a number, and needs none in an exponent.
            if (character == u'-')
                number += '-';
        } else if (isExponentMark(character)) {
            number += 'e';
        } else {
            break;
        }
        previous = character;
    }
    return number;
}

template <class Integer>
Integer roundTo(double value) {
    // Halves go to the even neighbour, which is the rounding that is in force by default.
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw Fault(QStringLiteral("The number %1 is too large to work with.").arg(value));
    return static_cast<Integer>(rounded);
}

/// Adds 1 to a number that is written in decimal digits.
void increment(QString& digits) {
    for (qsizetype i = digits.size(); i-- > 0;) {
        if (digits[i] != u'9') {
            digits[i] = QChar(digits[i].unicode() + 1);
            return;
        }
        digits[i] = u'0';
    }
    digits.prepend(u'1');
}

/// `value` times 10 to the power of `decimals`, rounded, without leading zeros.
QString roundedDigits(double value, qsizetype decimals) {
    const QString scientific = QString::number(value, 'e', kReliableDigits - 1);
    const qsizetype mark = scientific.indexOf(u'e');
    const qsizetype kept = scientific.mid(mark + 1).toInt() + 1 + decimals;
    QString digits = scientific.left(mark).remove(u'.');

    const bool roundUp = kept >= 0 && kept < digits.size() && digits[kept] >= u'5';
    digits = digits.left(qMax<qsizetype>(kept, 0)).leftJustified(kept, u'0');
    if (roundUp)
        increment(digits);
    while (digits.startsWith(u'0'))
        digits.remove(0, 1);
    return digits;
}

} // namespace

double Val(const QString& text) {
    const std::string number = numberAtStart(text);
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

qint16 RoundToInt16(double value) {
    return roundTo<qint16>(value);
}

qint32 RoundToInt32(double value) {
    return roundTo<qint32>(value);
}

QString FormatNumber(double value, const QString& pattern) {
    const qsizetype point = pattern.indexOf(u'.');
    const qsizetype whole = point < 0 ? pattern.size() : point;
    const qsizetype decimals = point < 0 ? 0 : pattern.size() - point - 1;
    const qsizetype firstZero = pattern.left(whole).indexOf(u'0');
    const qsizetype alwaysShown = firstZero < 0 ? 0 : whole - firstZero;

    QString digits = roundedDigits(std::fabs(value), decimals);
    const bool negative = value < 0 && !digits.isEmpty();
    digits = digits.rightJustified(alwaysShown + decimals, u'0');
    if (point >= 0)
        digits.insert(digits.size() - decimals, u'.');
    return negative ? u'-' + digits : digits;
}

QString DecimalText(double value) {
    return QString::number(value, 'g', kReliableDigits);
}

qsizetype InStr(const QString& text, const QString& what, qsizetype from) {
    if (from < 1)
        throw Fault(QLatin1String(kUnreadableLine));
    return text.indexOf(what, from - 1) + 1;
}

qsizetype InStrRev(const QString& text, const QString& what, qsizetype from) {
    if (from < 1)
        throw Fault(QLatin1String(kUnreadableLine));
    return text.lastIndexOf(what, from - 1) + 1;
}

qsizetype InStrRev(const QString& text, const QString& what) {
    return text.lastIndexOf(what) + 1;
}

QString Mid(const QString& text, qsizetype start, qsizetype length) {
    if (start < 1 || length < 0)
        throw Fault(QLatin1String(kUnreadableLine));
    return text.mid(start - 1, length);
}

QString Mid(const QString& text, qsizetype start) {
    return Mid(text, start, text.size());
}

QString LTrim(const QString& text) {
    qsizetype blanks = 0;
    while (blanks < text.size() && text[blanks] == u' ')
        ++blanks;
    return text.mid(blanks);
}

QString RTrim(const QString& text) {
    qsizetype length = text.size();
    while (length > 0 && text[length - 1] == u' ')
        --length;
    return text.left(length);
}

QString Trim(const QString& text) {
    return LTrim(RTrim(text));
}

QString ElementAt(const QStringList& list, qsizetype index) {
    if (index < 0 || index >= list.size())
        throw Fault(QLatin1String(kUnreadableLine));
    return list[index];
}

} // namespace tarnwell

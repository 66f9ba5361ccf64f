#pragma once

#include <QString>
#include <QStringList>

/// The number and text rules that reading the tool's output rests on. Text positions are counted from 1,
/// searches heed case, and trimming takes off blanks alone.
namespace tarnwell {

/// Reads a decimal number from the start of a text: blanks, tabs and line feeds are skipped wherever they
/// stand, the first character that cannot continue the number ends it, and no number is 0. Never fails.
double Val(const QString& text);

/// To the nearest whole number, halves to the even neighbour. A value outside the range is a Fault.
qint16 RoundToInt16(double value);
qint32 RoundToInt32(double value);

/// A number by a pattern such as "#.0", "#.00", "0.00", "00" or "00#": "0" is a digit that always shows, "#"
/// one that shows if it counts; a "#" behind a "0" is a "0" too. The decimal sign is a point whatever the
/// country; halves of the number as it reads in decimal digits round away from zero.
QString FormatNumber(double value, const QString& pattern);

/// A number in plain decimal digits, with as much of a fraction as it has.
QString DecimalText(double value);

/// Where `what` first stands at or behind `from`; 0 if nowhere. Searching from 0 is a Fault.
qsizetype InStr(const QString& text, const QString& what, qsizetype from = 1);
/// Where `what` last begins at or before `from`; 0 if nowhere. Searching from 0 is a Fault.
qsizetype InStrRev(const QString& text, const QString& what, qsizetype from);
qsizetype InStrRev(const QString& text, const QString& what);
/// A length beyond the end takes what is there. A start before 1 or a negative length is a Fault.
QString Mid(const QString& text, qsizetype start, qsizetype length);
QString Mid(const QString& text, qsizetype start);

QString LTrim(const QString& text);
QString RTrim(const QString& text);
QString Trim(const QString& text);

/// The element at `index`, counted from 0. A list that is too short is a Fault.
QString ElementAt(const QStringList& list, qsizetype index);

} // namespace tarnwell

#pragma once

#include <QString>

/// The number and text rules that reading the tool's output rests on. Text positions are counted from 1.
namespace tarnwell {

/// Reads a decimal number from the start of a text: blanks, tabs and line feeds are skipped, the first character that
/// cannot continue the number ends it, and no number is 0. Never fails.
double Val(const QString& text);

/// To the nearest whole number, halves to the even neighbour. A value outside the range is a Fault.
qint16 RoundToInt16(double value);
qint32 RoundToInt32(double value);

/// A number by a pattern such as "#.0", "#.00", "0.00", "00" or "00#": "0" is a digit that always shows, "#" one that
/// shows if it counts. The decimal sign is a point whatever the country; halves round away from zero.
QString FormatNumber(double value, const QString& pattern);

} // namespace tarnwell

#pragma once

#include <QString>
#include <QStringList>

namespace tarnwell {

/// Splits arguments as the tool does on Windows: blanks and tabs part them, double quotes group, also in the
/// middle of a word and up to the end if they are not closed, "" alone is an empty argument, and nothing is
/// escaped.
QStringList splitArguments(const QString& text);

} // namespace tarnwell

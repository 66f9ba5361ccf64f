#pragma once

#include <QString>

#include <ostream>

/// Lets a failed comparison show the text instead of its bytes.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

/// Let a failed comparison show texts instead of their bytes.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream) {
    *stream << '{' << texts.join(" | ").toStdString() << '}';
}

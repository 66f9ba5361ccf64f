#pragma once

#include <QString>
#include <QStringList>

namespace tarnwell::test {

/// A text that stands in C++ source, literals that follow each other joined, line ends as the compiler sees
/// them.
struct SourceText {
    QString text;
    QStringList calls; ///< the functions in whose parentheses it stands, the innermost last
};

QList<SourceText> textsIn(const QString& source);

} // namespace tarnwell::test

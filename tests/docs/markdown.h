#pragma once

#include <QString>
#include <QStringList>

namespace tarnwell::test {

/// A text file of the project, by its path from the project's folder.
QString projectFile(const QString& path);

/// All in one line with single blanks, without the signs that make quotes, slanted or bold letters.
QString plainWords(QString text);

/// The quotes of a page, one a paragraph, as they are written.
QStringList quotes(const QString& page);

/// Where the page's links and pictures lead.
QStringList linkTargets(const QString& page);

/// The names by which links reach the headings of a page.
QStringList anchors(const QString& page);

} // namespace tarnwell::test

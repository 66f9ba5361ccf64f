#pragma once

#include <QString>
#include <QStringList>

namespace tarnwell {

/// Turns a dialog's filter "words|pattern;pattern|words|pattern|" into the toolkit's list of "words (pattern
/// pattern)". A pair without its pattern is passed over.
QStringList toolkitFilters(const QString& filter);

} // namespace tarnwell

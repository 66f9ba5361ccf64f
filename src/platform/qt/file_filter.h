#pragma once

#include <QString>
#include <QStringList>

namespace tarnwell {

/// Whether the dialog that shows the files takes *.iso for GAME.ISO, too.
enum class PatternsFit { AnyCase, OwnCase };

/// Turns a dialog's filter "words|pattern;pattern|words|pattern|" into the toolkit's list of "words (pattern
/// pattern)". A pair without its pattern is passed over. All dialogs are to show the same files: one whose
/// patterns fit their own case only gets patterns like *.[iI][sS][oO].
QStringList toolkitFilters(const QString& filter, PatternsFit fit = PatternsFit::AnyCase);

/// What kind of file a filter is for: its first pattern in small letters, whatever its words.
QString kindOfFile(const QString& filter);

} // namespace tarnwell

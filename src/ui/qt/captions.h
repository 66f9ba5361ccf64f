#pragma once

#include <QString>

namespace tarnwell::view {

/// A caption as the user reads it: a doubled ampersand is one.
QString shownCaption(const QString& caption);

/// The same for a widget that would take a single ampersand for the mark of a shortcut.
QString escapedCaption(const QString& caption);

/// What the user reads of a widget's text, which may hold the mark of a shortcut.
QString readCaption(QString widgetText);

/// A tool tip that is never taken for rich text.
QString plainToolTip(const QString& text);

} // namespace tarnwell::view

#pragma once

#include "ui/qt/binding.h"

namespace tarnwell::view {

/// Whether the style in use draws a widget of this kind out of the desktop's theme, whatever its palette
/// says. Windows' own style does so with buttons, drop-down lists, tabs and headings, but writes on them in
/// the ink of the palette: the user's white would stand on the theme's pale grey.
bool drawnByTheme(const QWidget& widget);

/// Keeps the colours that the user gives to a window from such a widget.
void keepThemeColors(Binding& binding, QWidget& widget);

} // namespace tarnwell::view

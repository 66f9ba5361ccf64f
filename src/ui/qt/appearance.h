#pragma once

#include "ui/qt/binding.h"

#include <QColor>
#include <QPalette>

namespace tarnwell::view {

/// A colour of the model: 0x00BBGGRR, or the number of a system colour with the high bit set, which takes the
/// colour that the desktop uses in that place.
QColor toColor(std::int32_t color);

/// Black or white, whichever is easier to read on the given colour.
QColor contrasting(const QColor& background);

/// What every kind of control has: enabled, visible, tool tip, font, colours. It also tells the model the
/// place of a control that was declared without one.
void bindAppearance(Binding& binding, ui::Control& control, QWidget& widget);

} // namespace tarnwell::view

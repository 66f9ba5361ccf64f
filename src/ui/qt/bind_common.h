#pragma once

#include "ui/qt/binding.h"

namespace tarnwell::view {

/// What every kind of control has: enabled, visible, tool tip, font, colours.
void bindCommon(Binding& binding, ui::Control& control, QWidget& widget);

} // namespace tarnwell::view

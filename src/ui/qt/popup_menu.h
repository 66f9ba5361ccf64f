#pragma once

#include "ui/menu.h"
#include "ui/qt/binding.h"

namespace tarnwell::view {

/// Makes a real menu of a menu of the model when it is first opened. An entry that can be ticked leaves the
/// menu open.
void bindMenu(Binding& binding, ui::PopupMenu& menu, QWidget& window);

} // namespace tarnwell::view

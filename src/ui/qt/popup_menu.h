#pragma once

#include "ui/menu.h"
#include "ui/qt/binding.h"

class QMenu;

namespace tarnwell::view {

/// Makes a real menu of a menu of the model when it is first opened. An entry that can be ticked leaves the
/// menu open.
void bindMenu(Binding& binding, ui::PopupMenu& menu, QWidget& window);

/// The same menu for someone else to show; made now if it has never been opened.
QMenu& menuOf(Binding& binding, ui::PopupMenu& menu, QWidget& window);

} // namespace tarnwell::view

#pragma once

#include "ui/menu.h"
#include "ui/qt/binding.h"

class QMenu;

namespace tarnwell::view {

/// Opens a menu of the model at the pointer whenever the program wants it. An entry that can be ticked leaves
/// the menu open.
void bindMenu(Binding& binding, ui::PopupMenu& menu, QWidget& window);

/// Opens a menu below a widget, or above it where the screen ends; one that is open stays where it is.
void popUpBelow(QMenu& menu, const QWidget& anchor);

/// The real menu in one window of a menu of the model; made now if it has never been opened there.
QMenu& menuOf(Binding& binding, ui::PopupMenu& menu, QWidget& window);

} // namespace tarnwell::view

#include "ui/menu.h"

#include "ui/form.h"

namespace tarnwell::ui {

MenuEntry::MenuEntry(PopupMenu& menu, const QString& entryName, const QString& entryCaption, bool isCheckable)
    : name(entryName), checkable(isCheckable), caption(*this, entryCaption), enabled(*this, true),
      visible(*this, true), checked(*this), menu_(menu) {
    menu.add(*this);
}

PopupMenu::PopupMenu(Form& form, const QString& menuName, const QString& menuCaption)
    : name(menuName), caption(menuCaption), form_(form) {
    form.add(*this);
}

void PopupMenu::popUpBelow(const Control& control) {
    control.form().menuWanted.emitNow(*this, control);
}

void PopupMenu::reset() {
    for (MenuEntry* entry : entries_)
        entry->reset();
}

} // namespace tarnwell::ui

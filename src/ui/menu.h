#pragma once

#include "ui/property.h"

#include <QString>

#include <vector>

namespace tarnwell::ui {

class Form;
class PopupMenu;

/// An entry of a pop-up menu; one with the caption "-" is a separator.
class MenuEntry : public PropertyOwner {
public:
    MenuEntry(PopupMenu& menu, const QString& name, const QString& caption, bool checkable = false);

    const QString name;
    const bool checkable; ///< a click ticks it; the menu stays open for more
    Property<QString> caption;
    Property<bool> enabled, visible, checked;
    Event<> Click;

    bool separator() const { return caption.get() == QLatin1String("-"); }
    PopupMenu& menu() const { return menu_; }
    void reset() { resetProperties(); }

private:
    PopupMenu& menu_;
};

/// A menu that never shows as a menu bar: only code opens it. Menus are no members of the window's control
/// collection, so pausing a window's controls leaves them alone.
class PopupMenu {
public:
    PopupMenu(Form& form, const QString& name, const QString& caption);
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    const QString name;
    const QString caption;

    const std::vector<MenuEntry*>& entries() const { return entries_; }
    void add(MenuEntry& entry) { entries_.push_back(&entry); }
    Form& form() const { return form_; }

    /// Opens the menu with its corner at a place of its window, in twips, and returns while it is open.
    void popUp(int x, int y) { poppedUp.emitNow(x, y); }
    void popUpAtPointer() { poppedUpAtPointer.emitNow(); }
    void close() { closed.emitNow(); }

    Signal<int, int> poppedUp;
    Signal<> poppedUpAtPointer, closed;

    void reset();

private:
    Form& form_;
    std::vector<MenuEntry*> entries_;
};

} // namespace tarnwell::ui

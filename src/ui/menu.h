#pragma once

#include "ui/property.h"

#include <QString>

#include <vector>

namespace tarnwell::ui {

class Control;
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

    /// Opens the menu below a control, of whatever window, as it stands on the screen; leaves it where it is
    /// if it is open. Returns while it is open, as `popUpAtPointer` does.
    void popUpBelow(const Control& control);
    void popUpAtPointer() { poppedUpAtPointer.emitNow(); }
    void close() { closed.emitNow(); }

    Signal<> poppedUpAtPointer, closed;

    void reset();

private:
    Form& form_;
    std::vector<MenuEntry*> entries_;
};

} // namespace tarnwell::ui

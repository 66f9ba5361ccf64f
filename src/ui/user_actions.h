#pragma once

#include "ui/form.h"
#include "ui/list_view.h"

/// What a user does to a control. The view calls these for real clicks and keys, tests for theirs. A control
/// that the user cannot reach ignores them and the call returns false. Handlers run through the window's
/// dispatcher.
namespace tarnwell::ui {

bool click(Button& button);
bool click(Label& link); ///< a label that is no link ignores it
bool click(OptionButton& option);
bool click(CheckBox& box);
bool click(TextBox& box);
bool click(MenuEntry& entry); ///< a menu can be open over a hidden window
bool choose(ComboBox& list, int index);
bool selectTab(TabStrip& tabs, int index);
/// The whole text as it stands after the user's edit; line breaks stay out of a box of one line. Read-only
/// boxes ignore it.
bool type(TextBox& box, const QString& text);
/// Returns whether the key is still to be typed: false if a handler has swallowed it.
bool pressKey(TextBox& box, int character);
void focus(TextBox& box);
void tick(Timer& timer);
/// Returns whether the label was taken. It has one line.
bool editLabel(ListView& list, int row, const QString& text);
void pressMouse(ListView& list, int button);
/// Whether the window would take these files and folders right now.
bool takesFiles(const Form& form, const QStringList& paths);
/// Returns whether the window took them.
bool dropFiles(const Form& form, const QStringList& paths);
/// The close box of the window. Returns whether the window has closed.
bool close(Form& form);

} // namespace tarnwell::ui

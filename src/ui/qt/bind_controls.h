#pragma once

#include "ui/list_view.h"
#include "ui/qt/binding.h"

class QAbstractButton;

namespace tarnwell::view {

// One function a kind: makes the widget inside `parent`, lets it follow its control, and turns what the user
// does to it into the actions of ui/user_actions.h. What every kind has in common is bound by bindCommon.

QWidget* bindFrame(Binding& binding, ui::Frame& frame, QWidget* parent);
QWidget* bindLabel(Binding& binding, ui::Label& label, QWidget* parent);
QWidget* bindLink(Binding& binding, ui::Label& link, QWidget* parent);
QWidget* bindLine(QWidget* parent);
QWidget* bindButton(Binding& binding, ui::Button& button, QWidget* parent);
QWidget* bindOptionButton(Binding& binding, ui::OptionButton& option, QWidget* parent);
QWidget* bindCheckBox(Binding& binding, ui::CheckBox& box, QWidget* parent);
QWidget* bindTextBox(Binding& binding, ui::TextBox& box, QWidget* parent);
QWidget* bindComboBox(Binding& binding, ui::ComboBox& list, QWidget* parent);
QWidget* bindListView(Binding& binding, ui::ListView& list, QWidget* parent);
QWidget* bindPictureBox(Binding& binding, ui::PictureBox& picture, QWidget* parent);
QWidget* bindTabStrip(Binding& binding, ui::TabStrip& tabs, QWidget* parent);
void bindTimer(Binding& binding, ui::Timer& timer, QWidget* parent);

} // namespace tarnwell::view

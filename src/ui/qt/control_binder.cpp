#include "ui/qt/control_binder.h"

#include "ui/qt/bind_common.h"
#include "ui/qt/bind_controls.h"
#include "ui/qt/popup_menu.h"

#include <QLabel>

namespace tarnwell::view {

ControlBinder::ControlBinder(ui::Form& form, QWidget& window) {
    for (ui::Control* control : form.controls()) {
        QWidget* parent = control->container ? widgets_.at(control->container) : &window;
        if (QWidget* made = make(*control, parent)) {
            bindCommon(binding_, *control, *made);
            widgets_.emplace(control, made);
        }
    }
    for (ui::PopupMenu* menu : form.menus())
        bindMenu(binding_, *menu, window);
    binding_.listen(form.menuWanted, window,
                    [this, &window](ui::PopupMenu& menu, const ui::Control& control) {
                        popUpBelow(menuOf(binding_, menu, window), *widget(control));
                    });
}

QWidget* ControlBinder::make(ui::Control& control, QWidget* parent) {
    switch (control.kind) {
    case ui::Kind::Frame:
        return bindFrame(binding_, static_cast<ui::Frame&>(control), parent);
    case ui::Kind::Label:
        return bindLabel(binding_, static_cast<ui::Label&>(control), parent);
    case ui::Kind::Line:
        return bindLine(parent);
    case ui::Kind::Button:
        return bindButton(binding_, static_cast<ui::Button&>(control), parent);
    case ui::Kind::OptionButton:
        return bindOptionButton(binding_, static_cast<ui::OptionButton&>(control), parent);
    case ui::Kind::CheckBox:
        return bindCheckBox(binding_, static_cast<ui::CheckBox&>(control), parent);
    case ui::Kind::TextBox:
        return bindTextBox(binding_, static_cast<ui::TextBox&>(control), parent);
    case ui::Kind::ComboBox:
        return bindComboBox(binding_, static_cast<ui::ComboBox&>(control), parent);
    case ui::Kind::ListView:
        return bindListView(binding_, static_cast<ui::ListView&>(control), parent);
    case ui::Kind::PictureBox:
        return bindPictureBox(binding_, static_cast<ui::PictureBox&>(control), parent);
    case ui::Kind::TabStrip:
        return bindTabStrip(binding_, static_cast<ui::TabStrip&>(control), parent);
    case ui::Kind::Timer:
        bindTimer(binding_, static_cast<ui::Timer&>(control), parent);
        return nullptr;
    case ui::Kind::CommonDialog:
        return nullptr;
    }
    return nullptr;
}

void ControlBinder::nameBy(const ui::Label& label, const ui::Control& control) {
    static_cast<QLabel*>(widget(label))->setBuddy(widget(control));
}

} // namespace tarnwell::view

#include "ui/controls.h"

#include "ui/form.h"

namespace tarnwell::ui {

Frame::Frame(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::Frame, controlName, declared), caption(*this, declared.caption) {}

Label::Label(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::Label, controlName, declared), caption(*this, declared.caption),
      link(declared.link) {}

Line::Line(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::Line, controlName, declared) {}

Button::Button(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::Button, controlName, declared), caption(*this, declared.caption) {}

OptionButton::OptionButton(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::OptionButton, controlName, declared), caption(*this, declared.caption),
      value(*this, declared.value != 0) {
    value.assigned = [this](bool changes) {
        if (!changes || !value)
            return;
        clearOthers();
        Click();
    };
}

void OptionButton::clearOthers() {
    for (Control* control : form().controls()) {
        if (control != this && control->kind == Kind::OptionButton && control->container == container)
            static_cast<OptionButton*>(control)->value = false;
    }
}

CheckBox::CheckBox(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::CheckBox, controlName, declared), caption(*this, declared.caption),
      value(*this, declared.value) {
    value.assigned = [this](bool changes) {
        if (changes)
            Click();
    };
}

TextBox::TextBox(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::TextBox, controlName, declared), text(*this, declared.text), selectionStart(*this),
      selectionLength(*this), caretVisible(*this, true), readOnly(declared.readOnly),
      multiLine(declared.multiLine), centred(declared.centred) {
    text.assigned = [this](bool changes) {
        if (changes)
            Change();
    };
}

ComboBox::ComboBox(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::ComboBox, controlName, declared), listIndex(*this, declared.listIndex),
      declaredItems_(declared.items), items_(declared.items) {
    listIndex.assigned = [this](bool) {
        if (listIndex < -1 || listIndex >= listCount())
            listIndex.setQuietly(-1);
        Click();
    };
}

QString ComboBox::text() const {
    return items_.value(listIndex);
}

void ComboBox::addItem(const QString& item) {
    items_.append(item);
    itemsChanged.emitNow();
}

void ComboBox::clear() {
    listIndex.setQuietly(-1);
    items_.clear();
    itemsChanged.emitNow();
}

void ComboBox::reset() {
    clear();
    for (const QString& item : declaredItems_)
        addItem(item);
    Control::reset();
}

PictureBox::PictureBox(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::PictureBox, controlName, declared), scaleWidth(*this, declared.width),
      drawing(*this) {}

TabStrip::TabStrip(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::TabStrip, controlName, declared), captions(declared.items),
      selectedTab(*this, declared.listIndex) {
    selectedTab.assigned = [this](bool changes) {
        if (changes)
            Click();
    };
}

Timer::Timer(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::Timer, controlName, declared), interval(*this) {}

CommonDialog::CommonDialog(Form& form, const QString& controlName)
    : Control(form, Kind::CommonDialog, controlName, {}) {}

} // namespace tarnwell::ui

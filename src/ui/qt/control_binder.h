#pragma once

#include "ui/qt/binding.h"

#include <unordered_map>

namespace tarnwell::view {

/// Makes and binds one widget for each control of a window, in the order of the control collection, which is
/// also the order of the Tab key.
class ControlBinder {
public:
    ControlBinder(ui::Form& form, QWidget& window);

    Binding& binding() { return binding_; }
    const TwipScale& scale() const { return binding_.scale(); }
    QWidget* widget(const ui::Control& control) const { return widgets_.at(&control); }

    /// Lets a label speak for another control.
    void nameBy(const ui::Label& label, const ui::Control& control);

private:
    QWidget* make(ui::Control& control, QWidget* parent);

    Binding binding_;
    std::unordered_map<const ui::Control*, QWidget*> widgets_;
};

} // namespace tarnwell::view

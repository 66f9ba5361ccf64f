#include "ui/control.h"

#include "ui/form.h"

namespace tarnwell::ui {

Control::Control(Form& form, Kind controlKind, const QString& controlName, const Declared& declared)
    : name(controlName), kind(controlKind), container(declared.in), accessibleName(declared.accessibleName),
      enabled(*this, declared.enabled), visible(*this, declared.visible), toolTip(*this, declared.toolTip),
      tag(*this), left(*this, declared.left), top(*this, declared.top), width(*this, declared.width),
      height(*this, declared.height), font(*this, declared.font), foreColor(*this), backColor(*this),
      form_(form) {
    form.add(*this);
}

bool Control::usable() const {
    for (const Control* control = this; control; control = control->container) {
        if (!control->visible || !control->enabled)
            return false;
    }
    return form_.shown();
}

} // namespace tarnwell::ui

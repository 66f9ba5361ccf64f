#include "ui/form.h"

namespace tarnwell::ui {

Form::Form(const QString& formName, const Declared& declared)
    : name(formName), caption(*this, declared.caption), left(*this, declared.left), top(*this, declared.top),
      width(*this, declared.width), height(*this, declared.height), windowState(*this), mousePointer(*this),
      topmost(*this), visible(*this), backColor(*this) {}

void Form::load() {
    if (loaded_)
        return;
    loaded_ = true;
    Load();
}

void Form::show() {
    load();
    visible = true;
}

void Form::showRestored() {
    load();
    windowState = WindowState::Normal;
    visible = true;
}

void Form::hide() {
    visible = false;
}

void Form::centreOver(const Form& other) {
    left = other.left + other.width / 2 - width / 2;
    top = other.top + other.height / 2 - height / 2;
}

bool Form::unload() {
    if (!loaded_ || unloading_)
        return true;
    struct Unloading {
        bool& flag;
        explicit Unloading(bool& unloading) : flag(unloading) { flag = true; }
        ~Unloading() { flag = false; }
    } unloading(unloading_);

    bool cancel = false;
    QueryUnload(cancel);
    if (!cancel)
        Unload(cancel);
    if (cancel)
        return false;
    loaded_ = false;
    reset();
    return true;
}

void Form::dispatch(const std::function<void()>& handler) const {
    if (dispatcher)
        dispatcher(handler);
    else
        handler();
}

void Form::reset() {
    resetProperties();
    for (Control* control : controls_)
        control->reset();
    for (PopupMenu* menu : menus_)
        menu->reset();
}

} // namespace tarnwell::ui

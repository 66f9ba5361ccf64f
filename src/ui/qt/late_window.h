#pragma once

#include "ui/qt/form_view.h"
#include "ui/qt/keyboard.h"

namespace tarnwell::view {

/// Shows a window whose widgets are made when it first opens, which keeps the start of the program short.
template <class Form, class Layout>
class LateWindow {
public:
    explicit LateWindow(Form& form) {
        form.visible.changed.connect([this, &form] {
            if (form.visible && !window_)
                window_ = std::make_unique<Window>(form);
        });
    }

    /// Null until the window has been opened once.
    FormView* window() const { return window_.get(); }

private:
    class Window final : public FormView {
    public:
        explicit Window(Form& form) : FormView(form) {
            start(std::make_unique<Layout>(form, controls(), content()));
            bindKeyboard(form, controls(), *this);
        }
    };

    std::unique_ptr<FormView> window_;
};

} // namespace tarnwell::view

#include "ui/qt/status_window_view.h"

#include "ui/qt/paced_painting.h"
#include "ui/qt/status_window_layout.h"

namespace tarnwell::view {

namespace {

class Window final : public FormView {
public:
    explicit Window(ui::FrmStatus& form) : FormView(form) {
        start(std::make_unique<StatusWindowLayout>(form, controls(), *this));
    }

private:
    PacedPainting pacedPainting_{*this};
};

} // namespace

StatusWindowView::StatusWindowView(ui::FrmStatus& form) {
    form.visible.changed.connect([this, &form] {
        if (form.visible && !window_)
            window_ = std::make_unique<Window>(form);
    });
}

} // namespace tarnwell::view

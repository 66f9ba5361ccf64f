#pragma once

#include "ui/frm_status.h"
#include "ui/qt/form_view.h"

namespace tarnwell::view {

/// Shows the status window. Its widgets are made when it first opens, which keeps the start of the program
/// short.
class StatusWindowView {
public:
    explicit StatusWindowView(ui::FrmStatus& form);

    /// Null until the window has been opened once.
    FormView* window() const { return window_.get(); }

private:
    std::unique_ptr<FormView> window_;
};

} // namespace tarnwell::view

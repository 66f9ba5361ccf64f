#pragma once

#include "ui/frm_status.h"
#include "ui/qt/control_binder.h"
#include "ui/qt/paced_painting.h"
#include "ui/qt/window_layout.h"

namespace tarnwell::view {

class StatusWindowLayout final : public WindowLayout {
public:
    StatusWindowLayout(ui::FrmStatus& form, ControlBinder& controls, QWidget& content);

    double neededPixelsPerTwip() const override;
    void scaleTo(const TwipScale&) override {}
    Heights showHeight(int formHeight) override { return {formHeight, formHeight}; }

private:
    void layOutOverall();
    void layOutCurrent();
    void layOutWindow();

    QWidget* operator()(const ui::Control& control) const { return controls_.widget(control); }

    ui::FrmStatus& form_;
    ControlBinder& controls_;
    QWidget& content_;
    PacedPainting pacedPainting_{*content_.window()}; ///< every line of the tool changes something here
};

} // namespace tarnwell::view

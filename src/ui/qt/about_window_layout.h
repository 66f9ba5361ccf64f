#pragma once

#include "ui/frm_about.h"
#include "ui/qt/control_binder.h"
#include "ui/qt/window_layout.h"

class QLabel;

namespace tarnwell::view {

class AboutWindowLayout final : public WindowLayout {
public:
    AboutWindowLayout(ui::FrmAbout& form, ControlBinder& controls, QWidget& content);

    double neededPixelsPerTwip() const override;
    void scaleTo(const TwipScale& scale) override;
    Heights showHeight(int formHeight) override { return {formHeight, formHeight}; }

private:
    QLayout* title();
    QLayout* links();

    QWidget* operator()(const ui::Control& control) const { return controls_.widget(control); }

    ui::FrmAbout& form_;
    ControlBinder& controls_;
    QWidget& content_;
    QLabel* picture_;
};

} // namespace tarnwell::view

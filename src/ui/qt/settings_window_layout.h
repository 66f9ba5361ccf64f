#pragma once

#include "ui/frm_settings.h"
#include "ui/qt/control_binder.h"
#include "ui/qt/window_layout.h"

class QGridLayout;

namespace tarnwell::view {

/// Three pages over one another under the tabs, and the buttons that belong to none of them.
class SettingsWindowLayout final : public WindowLayout {
public:
    SettingsWindowLayout(ui::FrmSettings& form, ControlBinder& controls, QWidget& content);

    double neededPixelsPerTwip() const override;
    void scaleTo(const TwipScale&) override {}
    Heights showHeight(int formHeight) override { return {formHeight, formHeight}; }

private:
    void layOutTarnwell();
    void layOutGui();
    void layOutTools();
    void layOutWindow();
    QGridLayout* grid(const ui::Frame& page) const;

    QWidget* operator()(const ui::Control& control) const { return controls_.widget(control); }

    ui::FrmSettings& form_;
    ControlBinder& controls_;
    QWidget& content_;
};

} // namespace tarnwell::view

#pragma once

#include "ui/frm_main.h"
#include "ui/qt/control_binder.h"
#include "ui/qt/window_layout.h"

class QGridLayout;
class QLabel;

namespace tarnwell::view {

class MainWindowLayout final : public WindowLayout {
public:
    MainWindowLayout(ui::FrmMain& form, ControlBinder& controls, QWidget& content);

    double neededPixelsPerTwip() const override;
    void scaleTo(const TwipScale& scale) override;
    Heights showHeight(int formHeight) override;

private:
    void layOutWindow(QWidget& content);
    void layOutDevice();
    void layOutNavigation();
    void layOutInstall();
    void layOutBrowse();
    void layOutJobs();
    void layOutOutput();
    void orderFocus();

    QWidget* operator()(const ui::Control& control) const { return controls_.widget(control); }

    ui::FrmMain& form_;
    ControlBinder& controls_;
    QWidget* pages_; ///< everything that the job queue covers
    QGridLayout* windowGrid_;
    QGridLayout* pagesGrid_;
};

} // namespace tarnwell::view

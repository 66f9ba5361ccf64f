#include "ui/qt/spoken_progress.h"

#include <QPointer>

#include <utility>

namespace tarnwell::view {

namespace {

constexpr int kWhole = 100;

int tenthOf(int percent) {
    constexpr int kPercentOfATenth = 10;
    return percent / kPercentOfATenth;
}

int percentOf(const ui::PictureBox& bar) {
    return bar.scaleWidth > 0 ? qRound(bar.drawing.get().filledTo / bar.scaleWidth * kWhole) : 0;
}

} // namespace

SpokenProgress::SpokenProgress(ui::FrmMain& frmMain, ui::FrmStatus& frmStatus, Say say, QObject& parent)
    : QObject(&parent), say_(std::move(say)) {
    const QPointer alive(this);
    // Two jobs in a row may say the same of themselves.
    frmStatus.lblJob.caption.assigned = [alive, &job = frmStatus.lblJob](bool) {
        if (alive)
            alive->say_(job.caption);
    };
    frmStatus.picOverall.drawing.changed.connect([alive, &bar = frmStatus.picOverall] {
        if (alive)
            alive->reach(percentOf(bar));
    });
    // The main window is paused for as long as work runs.
    frmMain.cmdSettings.enabled.changed.connect([alive, &button = frmMain.cmdSettings] {
        if (!alive)
            return;
        if (button.enabled)
            alive->end();
        else
            alive->begin();
    });
}

void SpokenProgress::reach(int percent) {
    // Where only jobs are counted, each begins at zero.
    if (tenthOf(percent) > tenthOf(qMax(percent_, 0)))
        say_(QStringLiteral("%1%").arg(percent));
    percent_ = percent;
}

void SpokenProgress::end() {
    say_(percent_ == kNone || percent_ == kWhole
             ? QStringLiteral("The work has ended.")
             : QStringLiteral("The work has ended at %1%.").arg(percent_));
}

} // namespace tarnwell::view

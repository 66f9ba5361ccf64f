#include "work/status_window.h"

#include "base/mod_tray_icon.h"
#include "status/elapsed.h"
#include "tool/stop_tool.h"

#include <QScopeGuard>

namespace tarnwell {

namespace {

/// A tool that does not end has this long to finish what it writes before the user may end it.
constexpr qint32 kPatienceMilliseconds = 10'000;

/// Of two choices that exclude each other the one clicked last stays.
void untickOther(const ui::CheckBox& clicked, ui::CheckBox& other) {
    if (clicked.value == 1 && other.value == 1)
        other.value = 0;
}

} // namespace

StatusWindow::StatusWindow(Shared& shared, cStdIO& StdIO) : shared_(shared), StdIO_(StdIO) {
    ui::FrmStatus& frmStatus = shared_.frmStatus.untouched();
    frmStatus.chkShutdown.Click = [&frmStatus] { untickOther(frmStatus.chkShutdown, frmStatus.chkStandby); };
    frmStatus.chkStandby.Click = [&frmStatus] { untickOther(frmStatus.chkStandby, frmStatus.chkShutdown); };
    frmStatus.cmdStop.Click = [this] { stop(); };
    frmStatus.cmdMinimize.Click = [&frmStatus] { frmStatus.hide(); };
    frmStatus.Unload = [this](bool& cancel) { refuseToCloseDuringWork(cancel); };
}

void StatusWindow::stop() {
    const Clock& clock = shared_.ports.clock;
    if (!shared_.blnJobStopped)
        stoppedAtTick_ = clock.tickCount();
    TrayTip(shared_.ports.tray, shared_.title);
    shared_.blnJobStopped = true;
    const bool refused = !ShowStopPrompt(StdIO_);
    const bool patient = MillisecondsSince(stoppedAtTick_, clock) >= kPatienceMilliseconds;
    if (patient && (refused || StdIO_.stoppedToolLives()))
        offerEndByForce();
}

void StatusWindow::offerEndByForce() {
    if (shared_.ports.dialogs.question(
            "tarnwell.exe was told to stop and has not ended yet. Do you want to end "
            "it by force? What it was writing stays incomplete.",
            shared_.title))
        StdIO_.endByForce();
}

void StatusWindow::refuseToCloseDuringWork(bool& cancel) {
    if (!shared_.jobRunning())
        return;
    cancel = true;
    shared_.frmStatus.untouched().windowState = ui::WindowState::Minimised;
}

void WaitForCancelledTool(Shared& shared, cStdIO& StdIO) {
    if (!StdIO.stoppedToolLives())
        return;
    ui::Label& lblRemaining = shared.frmStatus->lblRemaining;
    const auto asBefore =
        qScopeGuard([&lblRemaining, text = lblRemaining.caption.get()] { lblRemaining.caption = text; });
    lblRemaining.caption = "Waiting for tarnwell.exe to end";
    WaitForStoppedTool(StdIO, shared.ports.pump);
}

void CentreStatusWindow(Shared& shared) {
    shared.frmStatus->centreOver(shared.frmMain);
}

void CloseStatusWindowIfWanted(Shared& shared) {
    if (shared.frmSettings->chkCloseStatus.value == 1)
        shared.frmStatus->hide();
}

} // namespace tarnwell

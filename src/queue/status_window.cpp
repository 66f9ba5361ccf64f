#include "queue/status_window.h"

#include "services/mod_tray_icon.h"
#include "tool/stop_tool.h"

namespace tarnwell {

namespace {

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
    TrayTip(shared_.ports.tray, shared_.title);
    shared_.blnJobStopped = true;
    ShowStopPrompt(StdIO_);
}

void StatusWindow::refuseToCloseDuringWork(bool& cancel) {
    if (!shared_.jobRunning())
        return;
    cancel = true;
    shared_.frmStatus.untouched().windowState = ui::WindowState::Minimised;
}

void CentreStatusWindow(Shared& shared) {
    shared.frmStatus->centreOver(shared.frmMain);
}

void CloseStatusWindowIfWanted(Shared& shared) {
    if (shared.frmSettings->chkCloseStatus.value == 1)
        shared.frmStatus->hide();
}

} // namespace tarnwell

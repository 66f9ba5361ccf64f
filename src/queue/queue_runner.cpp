#include "queue/queue_runner.h"

#include "app/fault.h"
#include "queue/job_caption.h"
#include "queue/job_result.h"
#include "queue/status_window.h"
#include "queue/wait_seconds.h"
#include "queue/work_under_way.h"
#include "services/mod_tray_icon.h"
#include "tool/stop_tool.h"
#include "workflows/device_selection.h"

#include <QScopeGuard>

#include <limits>

namespace tarnwell {

namespace {

constexpr double kPauseAfterDeleteSeconds = 1.0;
constexpr int kMostJobs = std::numeric_limits<qint16>::max() - 1; ///< as far as job numbers go

/// The columns behind the result.
enum SubItem { kTask, kSource, kDestination };

bool reportsProgress(const QString& command) {
    return command.startsWith(QLatin1String("inject_")) || command.startsWith(QLatin1String("extract ")) ||
           command.startsWith(QLatin1String("dump "));
}

} // namespace

QueueRunner::QueueRunner(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                         CompletionActions& completionActions, Sounds& sounds, StatusServer& statusServer)
    : shared_(shared), channel_(channel), StdIO_(StdIO), guiSwitch_(guiSwitch),
      completionActions_(completionActions), sounds_(sounds), statusServer_(statusServer) {
    shared_.frmMain.cmdStart.Click = [this] { start(); };
}

void QueueRunner::start() {
    if (!requireTool(shared_))
        return;
    guiSwitch_.EnableGUI(false);
    {
        const auto usableAgain = qScopeGuard([this] { guiSwitch_.EnableGUI(true); });
        openStatus();
        resetResults();
        shared_.blnJobStopped = false;
        shared_.blnInstallRunning = false;
        shared_.lQueueStartTick = shared_.ports.clock.tickCount();
        const ServerDuringWork server(statusServer_);
        runJobs();
    }
    finish();
}

void QueueRunner::openStatus() {
    auto& frmStatus = shared_.frmStatus;
    completionActions_.offerChoices();
    if (frmStatus->windowState != ui::WindowState::Minimised)
        CentreStatusWindow(shared_);
    frmStatus->show();
    shared_.frmMain.cmdMinimize.Click();
    if (shared_.config.text("StayOnTop") == QLatin1String("1"))
        frmStatus->topmost = true;
}

void QueueRunner::resetResults() {
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    for (int i = 0; i < lstJob.count(); ++i) {
        if (lstJob.row(i).text != kComplete)
            lstJob.setText(i, kPending);
    }
}

void QueueRunner::runJobs() {
    const WorkUnderWay work(shared_.ports);
    const ui::ListView& lstJob = shared_.frmMain.lstJob;
    const int limit = qMin(lstJob.count(), kMostJobs);
    for (shared_.intJobIndex = 1; shared_.intJobIndex <= limit; ++shared_.intJobIndex) {
        if (lstJob.row(row()).text != kComplete)
            runJob();
        if (shared_.blnJobStopped) {
            abortRest();
            return;
        }
    }
}

void QueueRunner::runJob() {
    const ui::ListView& lstJob = shared_.frmMain.lstJob;
    // Not read before its turn: the user may have edited it while earlier jobs ran.
    const QString command = lstJob.row(row()).tag;
    showJob(command);
    if (command.startsWith(QLatin1String("delete")))
        deleteGame(command);
    else
        transfer(command);
    if (shared_.blnQueueRunning && shared_.blnJobStopped) {
        WaitForStoppedTool(StdIO_, shared_.ports.pump);
        shared_.blnQueueRunning = false;
    }
    sounds_.afterJob();
}

void QueueRunner::showJob(const QString& command) {
    auto& frmStatus = shared_.frmStatus;
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    lstJob.select(row());
    frmStatus->lblTask.caption =
        QStringLiteral("Currently on Job %1 of %2").arg(shared_.intJobIndex).arg(lstJob.count());
    frmStatus->lblSpeed.caption = "Speed: n/a";
    frmStatus->lblRemaining.caption = "Time remaining: n/a";
    frmStatus->lblCurrentElapsed.caption = "00:00:00";
    setResult(kActive);
    shared_.blnJobDone = false;
    shared_.lJobStartTick = shared_.ports.clock.tickCount();
    frmStatus->lblJob.caption = JobCaption(command);
}

void QueueRunner::deleteGame(const QString& command) {
    channel_.Tarn_Execute(command);
    WaitSeconds(kPauseAfterDeleteSeconds, shared_.ports);
    setResult(kComplete);
}

void QueueRunner::transfer(const QString& command) {
    // Only what is done clears it, neither a failure nor the next job: as long as it stands the status window
    // does not close.
    if (reportsProgress(command))
        shared_.blnQueueRunning = true;
    channel_.Tarn_Command(command);
}

void QueueRunner::abortRest() {
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    for (int i = row(); i < lstJob.count(); ++i)
        lstJob.setText(i, kAborted);
}

void QueueRunner::finish() {
    TrayTip(shared_.ports.tray, shared_.title);
    CloseStatusWindowIfWanted(shared_);
    if (QueueTouchesDevice(shared_.frmMain))
        refreshGameList();
    sounds_.afterQueue();
    if (!shared_.blnJobStopped)
        completionActions_.afterQueue();
}

void QueueRunner::refreshGameList() {
    try {
        RefreshAfterWork(shared_);
    } catch (const Fault& fault) {
        // A list that cannot be read keeps no machine from being turned off.
        shared_.message(fault.text());
    }
}

void QueueRunner::setResult(const QString& result) {
    shared_.frmMain.lstJob.setText(row(), result);
}

bool QueueTouchesDevice(const ui::FrmMain& frmMain) {
    const QString device = frmMain.optLAN.value ? frmMain.txtIP.text.get() : frmMain.cmbHD.text();
    for (int i = 0; i < frmMain.lstJob.count(); ++i) {
        const QStringList& job = frmMain.lstJob.row(i).subItems;
        if (job[kDestination] == device || (job[kTask] == QLatin1String("Delete") && job[kSource] == device))
            return true;
    }
    return false;
}

} // namespace tarnwell

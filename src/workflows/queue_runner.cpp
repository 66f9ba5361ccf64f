#include "workflows/queue_runner.h"

#include "base/fault.h"
#include "base/mod_tray_icon.h"
#include "queue/job_caption.h"
#include "status/wait_seconds.h"
#include "work/one_run.h"
#include "work/status_window.h"
#include "work/work_under_way.h"
#include "workflows/device_selection.h"

#include <limits>

namespace tarnwell {

namespace {

constexpr double kPauseAfterDeleteSeconds = 1.0;
constexpr int kMostJobs = std::numeric_limits<qint16>::max() - 1; ///< as far as job numbers go

bool reportsProgress(const QString& command) {
    return command.startsWith(QLatin1String("inject_")) || command.startsWith(QLatin1String("extract ")) ||
           command.startsWith(QLatin1String("dump "));
}

} // namespace

QueueRunner::QueueRunner(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                         CompletionActions& completionActions, Sounds& sounds, StatusServer& statusServer)
    : shared_(shared), jobs_(shared), channel_(channel), StdIO_(StdIO), guiSwitch_(guiSwitch),
      completionActions_(completionActions), sounds_(sounds), statusServer_(statusServer) {
    shared_.frmMain.cmdStart.Click = [this] { start(); };
}

void QueueRunner::start() {
    const OneRun run(shared_.runUnderWay);
    if (!run || !requireTool(shared_) || !requireIdleTool(shared_, channel_))
        return;
    {
        const PauseOfMainWindow pause(guiSwitch_);
        openStatus();
        jobs_.resetResults();
        shared_.blnJobStopped = false;
        // A question that lost its connection may still be open, and would take the progress for its answer.
        shared_.blnReadTOC = false;
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

void QueueRunner::runJobs() {
    const WorkUnderWay work(shared_.ports);
    const int limit = qMin(jobs_.count(), kMostJobs);
    for (shared_.intJobIndex = 1; shared_.intJobIndex <= limit; ++shared_.intJobIndex) {
        if (!jobs_.complete(row()))
            runJob();
        if (shared_.blnJobStopped) {
            jobs_.abortFrom(row());
            return;
        }
    }
}

void QueueRunner::runJob() {
    // Not read before its turn: the user may have edited it while earlier jobs ran.
    const QString command = jobs_.command(row());
    showJob(command);
    if (command.startsWith(QLatin1String("delete")))
        deleteGame(command);
    else
        transfer(command);
    if (shared_.blnQueueRunning && shared_.blnJobStopped) {
        WaitForCancelledTool(shared_, StdIO_);
        shared_.blnQueueRunning = false;
    }
    sounds_.afterJob();
}

void QueueRunner::showJob(const QString& command) {
    auto& frmStatus = shared_.frmStatus;
    shared_.frmMain.lstJob.select(row());
    frmStatus->lblTask.caption =
        QStringLiteral("Currently on Job %1 of %2").arg(shared_.intJobIndex).arg(jobs_.count());
    frmStatus->lblSpeed.caption = "Speed: n/a";
    frmStatus->lblRemaining.caption = "Time remaining: n/a";
    frmStatus->lblCurrentElapsed.caption = "00:00:00";
    jobs_.setResult(row(), kActive);
    shared_.blnJobDone = false;
    shared_.lJobStartTick = shared_.ports.clock.tickCount();
    frmStatus->lblJob.caption = JobCaption(command);
}

void QueueRunner::deleteGame(const QString& command) {
    const bool ran = channel_.Tarn_Execute(command);
    WaitSeconds(kPauseAfterDeleteSeconds, shared_.ports);
    if (ran)
        jobs_.setResult(row(), kComplete);
}

void QueueRunner::transfer(const QString& command) {
    // Only what is done clears it, neither a failure nor the next job: as long as it stands the status window
    // does not close.
    if (reportsProgress(command))
        shared_.blnQueueRunning = true;
    channel_.Tarn_Command(command);
}

void QueueRunner::finish() {
    TrayTip(shared_.ports.tray, shared_.title);
    CloseStatusWindowIfWanted(shared_);
    if (QueueTouchesDevice())
        refreshGameList();
    sounds_.afterQueue();
    if (!shared_.blnJobStopped)
        completionActions_.turnOffWhatIsTicked();
}

void QueueRunner::refreshGameList() {
    try {
        RefreshAfterWork(shared_);
    } catch (const Fault& fault) {
        // A list that cannot be read keeps no machine from being turned off.
        shared_.message(fault.text());
    }
}

bool QueueRunner::QueueTouchesDevice() const {
    const ui::FrmMain& frmMain = shared_.frmMain;
    return jobs_.touch(frmMain.optLAN.value ? frmMain.txtIP.text.get() : frmMain.cmbHD.text());
}

} // namespace tarnwell

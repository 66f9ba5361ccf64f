#include "workflows/install_now.h"

#include "base/mod_tray_icon.h"
#include "work/one_run.h"
#include "work/status_window.h"
#include "work/work_under_way.h"
#include "workflows/device_selection.h"
#include "workflows/free_space.h"
#include "workflows/install_source.h"

#include <QScopeGuard>

#include <algorithm>

namespace tarnwell {

namespace {

QStringList linesOf(QString text) {
    return text.replace('\r', '\n').split('\n', Qt::SkipEmptyParts);
}

/// A line that nobody can read, such as one that is torn, keeps those that came with it from the bars.
bool reached100(const QString& output) {
    const QStringList lines = linesOf(output);
    return std::any_of(lines.begin(), lines.end(),
                       [](const QString& line) { return line.trimmed().startsWith(QLatin1String("100%")); });
}

} // namespace

InstallNow::InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                       CompletionActions& completionActions, StatusServer& statusServer)
    : shared_(shared), channel_(channel), StdIO_(StdIO), guiSwitch_(guiSwitch),
      completionActions_(completionActions), statusServer_(statusServer) {
    shared_.frmMain.cmdInstall.Click = [this] { install(); };
}

void InstallNow::install() {
    const OneRun run(shared_.runUnderWay);
    if (!run || !requireTool(shared_) || !requireSource(shared_))
        return;
    if (shared_.frmMain.txtGameName.text.get().isEmpty()) {
        shared_.message("Please enter a name for the game to install.");
        return;
    }
    if (!requireFreeSpace(shared_))
        return;
    if (!requireIdleTool(shared_, channel_))
        return;
    const Installation game = ReadInstallPage(shared_.frmMain);
    QString failure;
    shared_.balloon("Installing " + game.name);
    {
        const PauseOfMainWindow pause(guiSwitch_);
        openStatus(game.name);
        shared_.frmMain.cmdMinimize.Click();
        failure = runTool(game);
        CloseStatusWindowIfWanted(shared_);
    }
    finish(game);
    if (!failure.isEmpty())
        shared_.message(failure);
}

void InstallNow::openStatus(const QString& name) {
    auto& frmStatus = shared_.frmStatus;
    completionActions_.offerChoices();
    frmStatus->lblJob.caption = "Installing " + name;
    frmStatus->lblTask.caption = "Currently on Job 1 of 1";
    CentreStatusWindow(shared_);
    frmStatus->show();
}

QString InstallNow::runTool(const Installation& game) {
    const WorkUnderWay work(shared_.ports);
    const auto runEnds = qScopeGuard([this] { shared_.blnInstallRunning = false; });
    shared_.blnInstallRunning = true;
    shared_.blnJobDone = false;
    shared_.blnJobStopped = false;
    // A question that lost its connection may still be open, and would take the progress for its answer.
    shared_.blnReadTOC = false;
    shared_.lJobStartTick = shared_.ports.clock.tickCount();
    const ServerDuringWork server(statusServer_);
    shared_.balloon("Installing [" + game.name + "] to [" + game.device + "]");
    const QString output = channel_.Tarn_Command(InstallCommand(game));
    if (shared_.blnInstallRunning && shared_.blnJobStopped)
        WaitForCancelledTool(shared_, StdIO_);
    QString failure = reached100(output) ? QString() : failureOf(game);
    shared_.blnInstallRunning = false;
    resetInstallPage(shared_.frmMain);
    return failure;
}

/// The tool's 100 percent clears the flag of the run: what ends without it has not worked.
QString InstallNow::failureOf(const Installation& game) const {
    if (!shared_.blnInstallRunning || shared_.blnJobStopped)
        return {};
    const QStringList lines = linesOf(shared_.frmMain.txtOutput.text);
    const QString words = lines.value(lines.size() - 1).trimmed();
    return game.name + " was not installed completely. " +
           (words.isEmpty() ? "tarnwell.exe did not say why." : "The last words of tarnwell.exe: " + words);
}

void InstallNow::finish(const Installation& game) {
    TrayTip(shared_.ports.tray, shared_.title);
    if (!shared_.blnJobStopped) {
        shared_.balloon("Installation of " + game.name + " complete!");
        completionActions_.turnOffWhatIsTicked();
    }
    RefreshAfterWork(shared_);
}

} // namespace tarnwell

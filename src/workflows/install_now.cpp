#include "workflows/install_now.h"

#include "queue/status_window.h"
#include "queue/work_under_way.h"
#include "services/mod_tray_icon.h"
#include "tool/stop_tool.h"
#include "workflows/device_selection.h"
#include "workflows/free_space.h"
#include "workflows/install_source.h"

#include <QScopeGuard>

namespace tarnwell {

InstallNow::InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                       CompletionActions& completionActions, StatusServer& statusServer)
    : shared_(shared), channel_(channel), StdIO_(StdIO), guiSwitch_(guiSwitch),
      completionActions_(completionActions), statusServer_(statusServer) {
    shared_.frmMain.cmdInstall.Click = [this] { install(); };
}

void InstallNow::install() {
    if (!requireTool(shared_) || !SourceChosen(shared_))
        return;
    if (shared_.frmMain.txtGameName.text.get().isEmpty()) {
        shared_.message("Please enter a name for the game to install.");
        return;
    }
    if (!EnoughFreeSpace(shared_))
        return;
    const Installation game = ReadInstallPage(shared_.frmMain);
    shared_.balloon("Installing " + game.name);
    guiSwitch_.EnableGUI(false);
    {
        const auto usableAgain = qScopeGuard([this] {
            shared_.blnInstallRunning = false;
            guiSwitch_.EnableGUI(true);
        });
        openStatus(game.name);
        shared_.frmMain.cmdMinimize.Click();
        run(game);
        CloseStatusWindowIfWanted(shared_);
    }
    finish(game);
}

void InstallNow::openStatus(const QString& name) {
    auto& frmStatus = shared_.frmStatus;
    completionActions_.offerChoices();
    frmStatus->lblJob.caption = "Installing " + name;
    frmStatus->lblTask.caption = "Currently on Job 1 of 1";
    CentreStatusWindow(shared_);
    frmStatus->show();
}

void InstallNow::run(const Installation& game) {
    const WorkUnderWay work(shared_.ports);
    shared_.blnInstallRunning = true;
    shared_.blnJobDone = false;
    shared_.blnJobStopped = false;
    shared_.lJobStartTick = shared_.ports.clock.tickCount();
    const ServerDuringWork server(statusServer_);
    shared_.balloon("Installing [" + game.name + "] to [" + game.device + "]");
    channel_.Tarn_Command(InstallCommand(game));
    if (shared_.blnInstallRunning && shared_.blnJobStopped)
        WaitForStoppedTool(StdIO_, shared_.ports.pump);
    shared_.blnInstallRunning = false;
    resetInstallPage(shared_.frmMain);
}

void InstallNow::finish(const Installation& game) {
    TrayTip(shared_.ports.tray, shared_.title);
    if (!shared_.blnJobStopped) {
        shared_.balloon("Installation of " + game.name + " complete!");
        completionActions_.afterInstall();
    }
    RefreshAfterWork(shared_);
}

} // namespace tarnwell

#include "workflows/install_now.h"

#include "interpreter/tool_commands.h"
#include "services/mod_ping.h"
#include "services/mod_tray_icon.h"
#include "tool/stop_tool.h"
#include "workflows/free_space.h"
#include "workflows/install_source.h"

namespace tarnwell {

InstallNow::InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                       CompletionActions& completionActions)
    : shared_(shared), channel_(channel), StdIO_(StdIO), guiSwitch_(guiSwitch),
      completionActions_(completionActions) {
    shared_.frmMain.cmdInstall.Click = [this] { install(); };
}

void InstallNow::install() {
    if (!requireTool(shared_) || !sourceChosen())
        return;
    if (shared_.frmMain.txtGameName.text.get().isEmpty()) {
        shared_.message("Please enter a name for the game to install.");
        return;
    }
    if (!EnoughFreeSpace(shared_))
        return;
    const Game game = readPage();
    shared_.balloon("Installing " + game.name);
    guiSwitch_.EnableGUI(false);
    openStatus(game.name);
    shared_.frmMain.cmdMinimize.Click();
    run(game);
    finish(game);
}

bool InstallNow::sourceChosen() {
    const ui::FrmMain& frmMain = shared_.frmMain;
    if (frmMain.optISO.value && frmMain.txtISO.text.get().isEmpty()) {
        shared_.message("Please select an ISO to install.");
        return false;
    }
    if (frmMain.optOptical.value && frmMain.cmbOptical.text().isEmpty()) {
        shared_.message("Please select an optical drive with a PS2 game disc in it.");
        return false;
    }
    return true;
}

void InstallNow::openStatus(const QString& name) {
    const ui::FrmMain& frmMain = shared_.frmMain;
    auto& frmStatus = shared_.frmStatus;
    completionActions_.offerChoices();
    frmStatus->lblJob.caption = "Installing " + name;
    frmStatus->lblTask.caption = "Currently on Job 1 of 1";
    frmStatus->left = frmMain.left + frmMain.width / 2 - frmStatus->width / 2;
    frmStatus->top = frmMain.top + frmMain.height / 2 - frmStatus->height / 2;
    frmStatus->show();
}

InstallNow::Game InstallNow::readPage() const {
    const ui::FrmMain& frmMain = shared_.frmMain;
    const QString device = ActiveDeviceShort(frmMain);
    const QString name = frmMain.txtGameName.text;
    const QString source = frmMain.optISO.value ? frmMain.txtISO.text.get()
                                                : ResolveOpticalDrive(frmMain, frmMain.cmbOptical.text());
    return {name, device,
            InstallCommand({.type = frmMain.cmbType.text(),
                            .device = device,
                            .name = name,
                            .source = source,
                            .startup = frmMain.txtGameStartup.text,
                            .flags = FlagsWord(frmMain)})};
}

void InstallNow::run(const Game& game) {
    shared_.blnInstallRunning = true;
    shared_.blnJobDone = false;
    shared_.blnJobStopped = false;
    shared_.lJobStartTick = shared_.ports.clock.tickCount();
    shared_.balloon("Installing [" + game.name + "] to [" + game.device + "]");
    channel_.Tarn_Command(game.command);
    if (shared_.blnInstallRunning && shared_.blnJobStopped)
        WaitForStoppedTool(StdIO_, shared_.ports.pump);
    shared_.blnInstallRunning = false;
}

void InstallNow::finish(const Game& game) {
    resetInstallPage(shared_.frmMain);
    if (shared_.config.number("CloseStatus") == 1)
        shared_.frmStatus->hide();
    guiSwitch_.EnableGUI(true);
    TrayTip(shared_.ports.tray, shared_.title);
    if (!shared_.blnJobStopped) {
        shared_.balloon("Installation of " + game.name + " complete!");
        completionActions_.afterInstall();
    }
    refreshGameList();
}

void InstallNow::refreshGameList() {
    const ui::FrmMain& frmMain = shared_.frmMain;
    if (!frmMain.optLAN.value || PingConsole(frmMain.txtIP.text, shared_.ports.ping) != kNoAnswer)
        frmMain.cmdAttach.Click();
}

} // namespace tarnwell

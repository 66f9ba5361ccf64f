#include "app/program.h"

#include "base/mod_tray_icon.h"
#include "base/set_check_box.h"
#include "status/percent_bar.h"

namespace tarnwell {

namespace {

std::vector<ui::Column> withWidths(std::vector<ui::Column> columns, std::initializer_list<int> twips) {
    auto column = columns.begin();
    for (const int width : twips)
        (column++)->width = width;
    return columns;
}

} // namespace

Program::Program(const Ports& ports)
    : shared_(ports), dispatcher_(shared_), StdIO_(shared_), interpreter_(shared_),
      channel_(shared_, StdIO_, interpreter_), guiSwitch_(shared_.frmMain), navigation_(shared_),
      hideAndRestore_(shared_), exit_(shared_, StdIO_), statusWindow_(shared_, StdIO_),
      completionActions_(shared_, channel_), sounds_(shared_), jobList_(shared_), addGame_(shared_, jobList_),
      statusServer_(shared_),
      queueRunner_(shared_, channel_, StdIO_, guiSwitch_, completionActions_, sounds_, statusServer_),
      deviceSelection_(shared_, channel_, interpreter_), installSource_(shared_, channel_, interpreter_),
      droppedImages_(shared_, StdIO_, channel_, guiSwitch_, installSource_, jobList_),
      installNow_(shared_, channel_, StdIO_, guiSwitch_, completionActions_, statusServer_),
      makeIso_(shared_, jobList_), copyGames_(shared_, jobList_), deleteGames_(shared_, channel_, jobList_),
      renameGame_(shared_, channel_, guiSwitch_), exportGameList_(shared_), appearance_(shared_),
      diskTools_(shared_, channel_, interpreter_, guiSwitch_), toolConfig_(shared_),
      dataFolder_(shared_, toolConfig_), guiSettings_(shared_, dataFolder_, sounds_, appearance_),
      settingsWindow_(shared_, guiSettings_, dataFolder_, toolConfig_), aboutWindow_(shared_) {
    const auto dispatch = [this](const std::function<void()>& handler) { dispatcher_.dispatch(handler); };
    shared_.frmMain.dispatcher = dispatch;
    shared_.frmSettings.untouched().dispatcher = dispatch;
    shared_.frmStatus.untouched().dispatcher = dispatch;
    shared_.frmAbout.untouched().dispatcher = dispatch;
    shared_.frmMain.Load = [this] { loadMain(); };
}

void Program::start() {
    dispatcher_.dispatch([this] {
        shared_.title = shared_.frmMain.caption;
        if (!shared_.config.exists())
            shared_.config.WriteDefaultConfig();
        shared_.frmMain.load();
        shared_.frmSettings.untouched().load();
        TrayAdd(shared_.ports.tray, shared_.title);
        shared_.frmMain.txtOutput.caretVisible = false;
        layOutMain();
        shared_.frmMain.show();
        if (!shared_.config.canBeWritten())
            shared_.message(
                shared_.config.path() +
                " cannot be written: what you change on the GUI page of Settings & Tools, the console's "
                "address and the place of the tool's data will not be kept.");
    });
    // What went wrong has been told by now. Nobody could see or end a program without a window.
    if (!shared_.frmMain.shown() && !shared_.ports.pump.ended()) {
        TrayRemove(shared_.ports.tray);
        shared_.ports.pump.end();
    }
}

void Program::loadMain() {
    // Only a placeholder: every run of the tool brings its own command line.
    StdIO_.setCommandLine(shared_.ports.folders.commandInterpreter());
}

void Program::layOutMain() {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.fmJob.left = 120;
    const auto screen = shared_.ports.windows.screenSize();
    frmMain.left = screen.width / 2 - frmMain.width / 2;
    frmMain.top = screen.height / 2 - frmMain.height / 2;
    SetCheckBox(frmMain.chkOutput, shared_.config.text("ViewOutput"));
    const QString address = shared_.config.text("IP");
    frmMain.txtIP.text = address.isEmpty() ? ConfigStore::defaultText("IP") : address;
    PercentBar(frmMain.picDiskSpace, 100, 0, shared_.ports.pump);
    frmMain.lstHD.columns = withWidths(frmMain.lstHD.columns, {1400, 1070, 720, 540, 560});
    frmMain.lstJob.columns =
        withWidths(frmMain.lstJob.columns, {1000, 1125, 1100, 1375, 1700, 1200, 900, 1000});
}

} // namespace tarnwell

#include "app/program.h"

#include "queue/percent_bar.h"
#include "services/mod_tray_icon.h"

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
    });
}

void Program::loadMain() {
    // Only a placeholder: every run of the tool brings its own command line.
    StdIO_.setCommandLine(shared_.ports.folders.commandInterpreter());
}

void Program::layOutMain() {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.height = ui::FrmMain::kShortHeight;
    frmMain.fmInstall.top = 0;
    frmMain.fmJob.left = 120;
    frmMain.fmJob.top = 0;
    const auto screen = shared_.ports.windows.screenSize();
    frmMain.left = screen.width / 2 - frmMain.width / 2;
    frmMain.top = screen.height / 2 - frmMain.height / 2;
    frmMain.chkOutput.value = shared_.config.number("ViewOutput") == 1 ? 1 : 0;
    frmMain.cmbType.listIndex = 1;
    const QString address = shared_.config.text("IP");
    frmMain.txtIP.text = address.isEmpty() ? ConfigStore::defaultText("IP") : address;
    PercentBar(frmMain.picDiskSpace, 100, 0, shared_.ports.pump);
    frmMain.lstHD.columns = withWidths(frmMain.lstHD.columns, {1400, 1070, 720, 540, 560});
    frmMain.lstJob.columns =
        withWidths(frmMain.lstJob.columns, {1000, 1125, 1100, 1375, 1700, 1200, 900, 1000});
}

} // namespace tarnwell

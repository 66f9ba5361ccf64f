#include "workflows/device_selection.h"

#include "interpreter/tool_commands.h"
#include "services/mod_ping.h"
#include "status/device_display.h"
#include "workflows/command_arguments.h"
#include "workflows/listed_device.h"
#include "workflows/query.h"

namespace tarnwell {

namespace {

constexpr int kNarrowRefresh = 1215; // beside the shutdown button
constexpr int kWideRefresh = 2175;   // over its place too

} // namespace

DeviceSelection::DeviceSelection(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter)
    : shared_(shared), channel_(channel), interpreter_(interpreter) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.optLAN.Click = [this] { chooseLan(); };
    frmMain.optLocal.Click = [this] { chooseLocal(); };
    frmMain.cmbHD.Click = [this] { updateCopyTargets(); };
    frmMain.cmdAttach.Click = [this] { refresh(); };
    frmMain.cmdShutdownPS2.Click = [this] { shutDownConsole(); };
    frmMain.txtIP.Change = [this] { changeAddress(); };
    frmMain.txtIP.KeyPress = [this](int& key) { pressKeyInAddress(key); };
}

void DeviceSelection::chooseLan() {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmbHD.listIndex = -1;
    frmMain.cmbHD.visible = false;
    frmMain.lblIP.visible = true;
    frmMain.txtIP.visible = true;
    frmMain.cmdShutdownPS2.visible = true;
    frmMain.cmdAttach.caption = "Refresh PS2";
    frmMain.cmdAttach.width = kNarrowRefresh;
    ClearFreeSpace(shared_);
    frmMain.lstHD.clear();
    disableDeviceGroup();
}

void DeviceSelection::chooseLocal() {
    ui::FrmMain& frmMain = shared_.frmMain;
    if (!requireTool(shared_)) {
        frmMain.optLAN.value = true;
        return;
    }
    const int chosen = frmMain.cmbHD.listIndex;
    queryDisks();
    if (!frmMain.optLocal.value)
        return; // the user has gone back to the console meanwhile
    if (frmMain.cmbHD.listCount() == 0) {
        frmMain.optLAN.value = true;
        shared_.message("No PS2 formatted HDD's were found on your system.");
        return;
    }
    chooseDiskAgain(chosen);
    frmMain.lblIP.visible = false;
    frmMain.txtIP.visible = false;
    frmMain.cmdAttach.caption = "Refresh HDD";
    frmMain.cmdAttach.width = kWideRefresh;
    frmMain.cmdShutdownPS2.visible = false;
    resetDevice();
    if (!frmMain.optLocal.value)
        return; // drawing the bar has let events in once more
    frmMain.cmbHD.visible = true;
    // Chosen once more, so that its Click runs with the list visible.
    chooseDiskAgain(frmMain.cmbHD.listIndex);
}

void DeviceSelection::updateCopyTargets() {
    // A disk cannot be chosen as the copy target of itself. On a console none is, whatever the hidden list of
    // disks has chosen.
    ui::FrmMain& frmMain = shared_.frmMain;
    const int source = frmMain.optLocal.value ? frmMain.cmbHD.listIndex.get() : -1;
    const int entries = std::min(frmMain.cmbHD.listCount(), ui::FrmMain::kHddEntries);
    for (int i = 0; i < entries; ++i)
        frmMain.mnuHDD[static_cast<std::size_t>(i)].enabled = i != source;
}

void DeviceSelection::refresh() {
    ui::FrmMain& frmMain = shared_.frmMain;
    if (!requireTool(shared_))
        return;
    if (frmMain.optLocal.value && frmMain.cmbHD.text().isEmpty()) {
        shared_.message("No hard-drive selected.");
        return;
    }
    if (frmMain.optLAN.value && !requireAddress())
        return;
    frmMain.cmdAddGame.enabled = false;
    frmMain.cmdInstall.enabled = false;
    const Hourglass hourglass(frmMain);
    const bool onNetwork = frmMain.optLAN.value;
    if (onNetwork) {
        // A networked console too has the local disks as targets of a copy.
        const int chosen = frmMain.cmbHD.listIndex;
        queryDisks();
        chooseDiskAgain(chosen);
    }
    if (frmMain.optLAN.value != onNetwork)
        return; // the user has changed over meanwhile
    AwaitedAnswer gameList(shared_.blnReadTOC);
    if (!onNetwork || requireConsole(shared_, frmMain.txtIP.text))
        readGameList(gameList);
    else
        gameList.drop();
}

void DeviceSelection::readGameList(AwaitedAnswer& gameList) {
    const ui::FrmMain& frmMain = shared_.frmMain;
    const bool onNetwork = frmMain.optLAN.value;
    const QString address = frmMain.txtIP.text;
    const auto deviceChanged = [&] {
        return frmMain.optLAN.value != onNetwork || frmMain.txtIP.text != address;
    };
    const QString asked = DeviceOnView(frmMain);
    const QString answer = channel_.Tarn_Command(GameListCommand(ActiveDeviceLong(frmMain)));
    if (!deviceChanged()) {
        const ReadingGamesOf device(shared_.frmMain.lstHD, asked);
        interpreter_.ParseToolOutput(answer);
        shared_.listedDevice = asked;
    }
    // The games of one device must not stand there, ready to be deleted, beside the address of another.
    // Drawing the bar in the middle of the reading lets events in as well.
    if (deviceChanged()) {
        resetDevice();
        gameList.drop();
    }
    // After a failed job the answer was taken for that job's. The question must not stay open: the progress
    // of the next job would be withheld as part of the answer.
    if (shared_.jobRunning())
        gameList.drop();
}

void DeviceSelection::shutDownConsole() {
    ui::FrmMain& frmMain = shared_.frmMain;
    if (!requireTool(shared_))
        return;
    if (frmMain.optLAN.value && !requireAddress())
        return;
    if (!requireConsole(shared_, frmMain.txtIP.text))
        return;
    const QString command = PowerOffCommand(frmMain.txtIP.text);
    frmMain.txtCommand.text = command;
    frmMain.txtOutput.text = QString();
    resetDevice();
    channel_.Tarn_Execute(command);
}

void DeviceSelection::changeAddress() {
    shared_.config.write("IP", shared_.frmMain.txtIP.text);
    disableDeviceGroup();
    shared_.frmMain.lstHD.clear();
    ClearFreeSpace(shared_);
}

void DeviceSelection::pressKeyInAddress(int& key) {
    if (key != ui::TextBox::kEnterKey)
        return;
    key = 0;
    refresh();
}

void DeviceSelection::queryDisks() {
    shared_.frmMain.cmbHD.clear();
    ShowGameCount(shared_, 0);
    RunQuery(shared_.blnQueryHD, channel_, interpreter_);
}

void DeviceSelection::chooseDiskAgain(int index) {
    ui::ComboBox& cmbHD = shared_.frmMain.cmbHD;
    if (index != -1 && cmbHD.listCount() > 0)
        cmbHD.listIndex = index;
}

bool DeviceSelection::requireAddress() {
    if (!shared_.frmMain.txtIP.text.get().isEmpty())
        return true;
    shared_.message("Please enter the IP address of your PlayStation2.");
    return false;
}

void DeviceSelection::resetDevice() {
    disableDeviceGroup();
    shared_.frmMain.lstHD.clear();
    ClearFreeSpace(shared_);
}

void DeviceSelection::disableDeviceGroup() {
    ui::FrmMain& frmMain = shared_.frmMain;
    for (ui::Button* button :
         {&frmMain.cmdAddGame, &frmMain.cmdInstall, &frmMain.cmdBackupPC, &frmMain.cmdBackupPS2,
          &frmMain.cmdBackupHDD, &frmMain.cmdDelete, &frmMain.cmdSaveList})
        button->enabled = false;
}

QString ConsoleNotFound(const QString& address) {
    return "A PS2 console could not be found at IP address: " + address +
           "\r\n\r\nVerify the following:\r\n\r\n"
           "1. The PS2 console is currently running tarnd_svr.elf and it is fully initialized.\r\n"
           "2. The IP address you entered matches the IP address configured in mc0:SYS-CONF/IPCONFIG.DAT";
}

bool requireConsole(Shared& shared, const QString& address) {
    if (PingConsole(address, shared.ports.ping) != kNoAnswer)
        return true;
    shared.message(ConsoleNotFound(address) + "\r\n");
    return false;
}

void RefreshAfterWork(Shared& shared) {
    const ui::FrmMain& frmMain = shared.frmMain;
    if (!frmMain.optLAN.value || PingConsole(frmMain.txtIP.text, shared.ports.ping) != kNoAnswer)
        frmMain.cmdAttach.Click();
}

} // namespace tarnwell

#include "settings/disk_tools.h"

#include "app/fault.h"
#include "interpreter/tool_commands.h"
#include "services/mod_ping.h"
#include "workflows/device_selection.h"
#include "workflows/query.h"

#include <QFile>

namespace tarnwell {

namespace {

const QString kTocFiles = QStringLiteral("HDLoader TOC File (*.bak)|*.bak|");
const QString kAllFiles = QStringLiteral("All Files (*.*)|*.*|");

QString formatQuestion(const QString& entry) {
    return "ARE YOU SURE YOU WANT TO FORMAT THIS HARD DRIVE?\r\n\r\n" + entry +
           "\r\n\r\nALL EXISTING DATA ON THIS DRIVE WILL BE LOST";
}

/// While this lives, neither the main window nor the disk tools start anything else.
class LongWork {
public:
    LongWork(Shared& shared, GuiSwitch& guiSwitch)
        : guiSwitch_(guiSwitch), pausedAlready_(guiSwitch.paused()),
          frmSettings_(shared.frmSettings.untouched()), hourglass_(frmSettings_) {
        // Work that runs already has paused the main window, and knows how to restore it.
        if (!pausedAlready_)
            guiSwitch_.EnableGUI(false);
        frmSettings_.fmTools.enabled = false;
    }
    ~LongWork() {
        frmSettings_.fmTools.enabled = true;
        if (!pausedAlready_)
            guiSwitch_.EnableGUI(true);
    }
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

private:
    GuiSwitch& guiSwitch_;
    const bool pausedAlready_;
    ui::FrmSettings& frmSettings_;
    const Hourglass hourglass_;
};

} // namespace

DiskTools::DiskTools(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter,
                     GuiSwitch& guiSwitch)
    : shared_(shared), channel_(channel), interpreter_(interpreter), guiSwitch_(guiSwitch) {
    ui::FrmSettings& frmSettings = shared_.frmSettings.untouched();
    frmSettings.cmdRefresh.Click = [this] { listDevices(); };
    frmSettings.cmbHD.Click = [this] { chooseDevice(); };
    frmSettings.cmdFormat.Click = [this] { format(); };
    frmSettings.cmdBackupTOC.Click = [this] { backUp(); };
    frmSettings.cmdRestoreTOC.Click = [this] { restore(); };
}

void DiskTools::listDevices() {
    if (!requireTool(shared_))
        return;
    auto& frmSettings = shared_.frmSettings;
    frmSettings->cmbHD.clear();
    RunQuery(shared_.blnQuerySettings, channel_, interpreter_);
    if (const QString& address = shared_.frmMain.txtIP.text; !address.isEmpty())
        frmSettings->cmbHD.addItem(address);

    const bool any = frmSettings->cmbHD.listCount() > 0;
    frmSettings->cmdFormat.enabled = any;
    if (!any) {
        frmSettings->cmdRestoreTOC.enabled = false;
        frmSettings->cmdBackupTOC.enabled = false;
    }
}

void DiskTools::chooseDevice() {
    // A disk of unknown format has no table of contents yet.
    const QString entry = shared_.frmSettings->cmbHD.text();
    const bool hasToc = !entry.contains(QLatin1String("Unknown")) ||
                        entry.contains(QLatin1String("playstation"), Qt::CaseInsensitive);
    shared_.frmSettings->cmdRestoreTOC.enabled = hasToc;
    shared_.frmSettings->cmdBackupTOC.enabled = hasToc;
}

void DiskTools::format() {
    if (!requireTool(shared_))
        return;
    ui::ComboBox& cmbHD = shared_.frmSettings->cmbHD;
    const int chosen = cmbHD.listIndex;
    const QString entry = cmbHD.text();
    if (!shared_.ports.dialogs.question(formatQuestion(entry), "ARE YOU 100% SURE?", MessageIcon::Stop))
        return;
    {
        const LongWork work(shared_, guiSwitch_);
        channel_.Tarn_Execute(FormatCommand(LocalDeviceShort(entry)));
        listDevices();
    }
    shared_.balloon(cmbHD.text() + " has been formatted for HDLoader");
    if (chosen < cmbHD.listCount())
        cmbHD.listIndex = chosen;
}

void DiskTools::backUp() {
    const std::optional<QString> from = device();
    if (!from)
        return;
    const auto file = shared_.ports.dialogs.saveFile({.filter = kTocFiles,
                                                      .folder = shared_.config.AppFolder(),
                                                      .fileName = "tarntoc.bak",
                                                      .askBeforeOverwriting = true});
    if (!file)
        return;
    if (QFile::exists(*file) && !QFile::remove(*file))
        throw Fault("The file " + *file + " is there already and cannot be replaced. Nothing was saved.");
    runTool(BackupTocCommand(*from, *file));
}

void DiskTools::restore() {
    const std::optional<QString> to = device();
    if (!to || !shared_.ports.dialogs.question("Are you sure you want to do this?", shared_.title))
        return;
    const auto file = shared_.ports.dialogs.openFile(
        {.filter = kTocFiles + kAllFiles, .folder = shared_.config.AppFolder(), .mustExist = true});
    if (file)
        runTool(RestoreTocCommand(*to, *file));
}

std::optional<QString> DiskTools::device() {
    const ui::ComboBox& cmbHD = shared_.frmSettings->cmbHD;
    if (cmbHD.listIndex != cmbHD.listCount() - 1)
        return LocalDeviceLong(cmbHD.text());
    const QString address = shared_.frmMain.txtIP.text;
    if (PingConsole(address, shared_.ports.ping) != kNoAnswer)
        return address;
    shared_.blnReadTOC = false;
    shared_.message(ConsoleNotFound(address));
    return std::nullopt;
}

void DiskTools::runTool(const QString& command) {
    const LongWork work(shared_, guiSwitch_);
    channel_.Tarn_Execute(command);
}

} // namespace tarnwell

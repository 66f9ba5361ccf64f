#include "settings/disk_tools.h"

#include "base/fault.h"
#include "base/picked_path.h"
#include "interpreter/tool_commands.h"
#include "services/mod_ping.h"
#include "work/work_under_way.h"
#include "workflows/device_selection.h"
#include "workflows/query.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace tarnwell {

namespace {

const QString kTocFiles = QStringLiteral("HDLoader TOC File (*.bak)|*.bak|");
const QString kAllFiles = QStringLiteral("All Files (*.*)|*.*|");

QString formatQuestion(const QString& entry) {
    return "ARE YOU SURE YOU WANT TO FORMAT THIS HARD DRIVE?\r\n\r\n" + entry +
           "\r\n\r\nALL EXISTING DATA ON THIS DRIVE WILL BE LOST";
}

/// Renames a file that is to be replaced. Returns its new name; none if there is no such file.
QString setAside(const QString& file) {
    if (!QFile::exists(file))
        return {};
    for (int number = 1; QFileInfo(file).isFile(); ++number) {
        QString aside = file + ".old" + QString::number(number);
        if (QFile::rename(file, aside))
            return aside;
        if (!QFile::exists(aside))
            break;
    }
    throw Fault("The file " + file + " is there already and cannot be replaced. Nothing was saved.");
}

/// While this lives, neither the main window nor the disk tools start anything else.
class LongWork {
public:
    LongWork(Shared& shared, GuiSwitch& guiSwitch)
        : work_(shared.ports), pause_(guiSwitch), hourglass_(shared.frmSettings.untouched()),
          fmTools_(shared.frmSettings.untouched().fmTools) {
        fmTools_.enabled = false;
    }
    ~LongWork() { fmTools_.enabled = true; }
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

private:
    const WorkUnderWay work_;
    const PauseOfMainWindow pause_;
    const Hourglass hourglass_;
    ui::Frame& fmTools_;
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
    // A second search in the middle of this one would add its entries to the same list.
    const auto reachableAgain =
        qScopeGuard([&tools = frmSettings->fmTools, before = frmSettings->fmTools.enabled.get()] {
            tools.enabled = before;
        });
    frmSettings->fmTools.enabled = false;
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
    if (!requireTool(shared_) || !requireEntry())
        return;
    ui::ComboBox& cmbHD = shared_.frmSettings->cmbHD;
    const int chosen = cmbHD.listIndex;
    const QString entry = cmbHD.text();
    if (!shared_.ports.dialogs.question(formatQuestion(entry), "ARE YOU 100% SURE?", MessageIcon::Stop))
        return;
    if (!requireIdleTool(shared_, channel_))
        return;
    bool ran = false;
    {
        const LongWork work(shared_, guiSwitch_);
        ran = channel_.Tarn_Execute(FormatCommand(LocalDeviceShort(entry)));
        listDevices();
    }
    if (ran)
        shared_.balloon(cmbHD.text() + " has been formatted for HDLoader");
    if (chosen < cmbHD.listCount())
        cmbHD.listIndex = chosen;
}

void DiskTools::backUp() {
    const std::optional<QString> from = device();
    if (!from)
        return;
    const auto file = shared_.ports.dialogs.saveFile({.title = "Save Table of Contents As",
                                                      .filter = kTocFiles,
                                                      .folder = shared_.config.AppFolder(),
                                                      .fileName = "tarntoc.bak",
                                                      .askBeforeOverwriting = true});
    const auto name = file ? NewNameInCodePage(shared_, *file) : std::nullopt;
    if (!name || !requireIdleTool(shared_, channel_))
        return;
    // The tool writes a new file, and it may be that it cannot be started.
    const QString old = setAside(*name);
    const bool ran = runTool(BackupTocCommand(*from, *name));
    if (old.isEmpty())
        return;
    if (ran)
        QFile::remove(old);
    else
        QFile::rename(old, *name);
}

void DiskTools::restore() {
    const std::optional<QString> to = device();
    if (!to || !shared_.ports.dialogs.question("Are you sure you want to do this?", shared_.title))
        return;
    const auto file = shared_.ports.dialogs.openFile({.title = "Select Table of Contents to Restore",
                                                      .filter = kTocFiles + kAllFiles,
                                                      .folder = shared_.config.AppFolder(),
                                                      .mustExist = true});
    const auto name = file ? NameInCodePage(shared_, *file) : std::nullopt;
    if (name && requireIdleTool(shared_, channel_))
        runTool(RestoreTocCommand(*to, *name));
}

std::optional<QString> DiskTools::device() {
    if (!requireEntry())
        return std::nullopt;
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

bool DiskTools::requireEntry() {
    if (!shared_.frmSettings->cmbHD.text().isEmpty())
        return true;
    shared_.message("Please select a device from the list first.");
    return false;
}

bool DiskTools::runTool(const QString& command) {
    const LongWork work(shared_, guiSwitch_);
    return channel_.Tarn_Execute(command);
}

} // namespace tarnwell

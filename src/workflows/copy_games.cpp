#include "workflows/copy_games.h"

#include "base/file_name.h"
#include "base/picked_path.h"
#include "base/text_primitives.h"
#include "interpreter/tool_commands.h"
#include "workflows/command_arguments.h"
#include "workflows/device_selection.h"
#include "workflows/listed_device.h"

namespace tarnwell {

namespace {

constexpr int kTypeColumn = 2; // of the columns behind the label

const QString kIsoFiles = QStringLiteral("ISO Files (*.iso)|*.iso|All Files (*.*)|*.*|");

QString proposedFileName(const QString& game) {
    return PermittedFileName(game.mid(game.lastIndexOf('\\') + 1) + ".iso");
}

/// A search for optical drives has emptied the menu, while the list of disks still knows them.
void captionDisks(ui::FrmMain& frmMain) {
    const int disks = std::min(frmMain.cmbHD.listCount(), ui::FrmMain::kHddEntries);
    for (int i = 0; i < disks; ++i) {
        ui::MenuEntry& entry = frmMain.mnuHDD[static_cast<std::size_t>(i)];
        entry.caption = frmMain.cmbHD.items()[i];
        entry.visible = true;
    }
}

/// Tells the user that an entry names no disk. Returns whether it does.
bool requireTarget(Shared& shared, const QString& entry) {
    if (!entry.isEmpty())
        return true;
    shared.message(
        "This disk is no longer listed, and nothing was copied. Press \"Copy to HDD\" again to see "
        "the disks.");
    return false;
}

} // namespace

CopyGames::CopyGames(Shared& shared, JobList& jobList) : shared_(shared), jobList_(jobList) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmdBackupPC.Click = [this] { copyToPc(); };
    frmMain.cmdBackupPS2.Click = [this] { copyToConsole(); };
    frmMain.cmdBackupHDD.Click = [this] { openDiskMenu(); };
    for (ui::MenuEntry& disk : frmMain.mnuHDD)
        disk.Click = [this, &disk] { copyToDisk(disk.caption); };
}

void CopyGames::copyToPc() {
    const auto game = focusedGame();
    if (!game || !requireSingleGame() || !requireListedDisk(shared_, game->device))
        return;
    const auto path = shared_.ports.dialogs.saveFile({.title = "Save Copy of Game As",
                                                      .filter = kIsoFiles,
                                                      .folder = shared_.config.text("DefaultISO"),
                                                      .fileName = proposedFileName(game->name),
                                                      .extension = "iso"});
    if (!path || path->isEmpty())
        return;
    const auto file = NewNameInCodePage(shared_, *path);
    if (!file)
        return;
    const QString device = ActiveDeviceShort(shared_.frmMain);
    jobList_.queueJob({.task = "Backup to PC", .source = device, .destination = *file, .name = game->name},
                      CopyToFileCommand(device, game->name, *file), kJobAdded);
}

void CopyGames::copyToConsole() {
    const auto game = focusedGame();
    if (!game || !requireSingleGame() || !requireListedDisk(shared_, game->device))
        return;
    const auto answer = shared_.ports.dialogs.input(
        "Please enter the IP address of the PS2 console to copy the selected game to.",
        "Destination IP Address", QString());
    const QString address = answer.value_or(QString());
    if (Trim(address).isEmpty())
        return;
    // A warning only: the copy goes on.
    if (Trim(address) == shared_.frmMain.txtIP.text)
        shared_.message("The address you entered matches the source PS2 address. Try again.");
    if (requireConsole(shared_, address))
        queueCopyToDevice("Copy to PS2", *game, address);
}

void CopyGames::openDiskMenu() {
    if (!requireSingleGame())
        return;
    captionDisks(shared_.frmMain);
    shared_.frmMain.mnuBackup.popUpBelow(shared_.frmMain.cmdBackupHDD);
}

void CopyGames::copyToDisk(const QString& entry) {
    const auto game = focusedGame();
    if (!game || !requireTarget(shared_, entry) || !requireListedDisk(shared_, game->device))
        return;
    queueCopyToDevice("Copy to HDD", *game, LocalDeviceShort(entry));
}

void CopyGames::queueCopyToDevice(const QString& task, const Game& game, const QString& target) {
    const QString device = ActiveDeviceLong(shared_.frmMain);
    jobList_.queueJob({.task = task, .source = device, .destination = target, .name = game.name},
                      CopyToDeviceCommand(game.type, target, game.name, device), kJobAdded);
}

/// The row that has the focus, if it is selected too.
std::optional<CopyGames::Game> CopyGames::focusedGame() const {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    const int index = lstHD.selectedItem;
    if (index < 0 || !lstHD.row(index).selected)
        return std::nullopt;
    const ui::ListView::Row& row = lstHD.row(index);
    return Game{row.text, row.subItems.value(kTypeColumn), row.tag};
}

bool CopyGames::requireSingleGame() {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    int selected = 0;
    for (int i = 0; i < lstHD.count(); ++i)
        selected += lstHD.row(i).selected ? 1 : 0;
    if (selected < 2)
        return true;
    shared_.message("This command does not support multiple games.");
    return false;
}

} // namespace tarnwell

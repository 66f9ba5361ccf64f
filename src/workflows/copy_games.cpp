#include "workflows/copy_games.h"

#include "interpreter/text_primitives.h"
#include "interpreter/tool_commands.h"
#include "workflows/device_selection.h"

namespace tarnwell {

namespace {

constexpr int kTypeColumn = 2; // of the columns behind the label

const QString kIsoFiles = QStringLiteral("ISO Files (*.iso)|*.iso|All Files (*.*)|*.*|");

QString proposedFileName(const QString& game) {
    return game.mid(game.lastIndexOf('\\') + 1) + ".iso";
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
    if (!game || severalSelected())
        return;
    const auto path = shared_.ports.dialogs.saveFile({.filter = kIsoFiles,
                                                      .folder = shared_.config.text("DefaultISO"),
                                                      .fileName = proposedFileName(game->name),
                                                      .extension = "iso"});
    if (!path || path->isEmpty())
        return;
    const QString device = ActiveDeviceShort(shared_.frmMain);
    jobList_.queueJob({.task = "Backup to PC", .source = device, .destination = *path, .name = game->name},
                      CopyToFileCommand(device, game->name, *path), kJobAdded);
}

void CopyGames::copyToConsole() {
    const auto game = focusedGame();
    if (!game || severalSelected())
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
    if (ConsoleAnswers(shared_, address))
        queueCopyToDevice("Copy to PS2", *game, address);
}

void CopyGames::openDiskMenu() {
    if (severalSelected())
        return;
    ui::FrmMain& frmMain = shared_.frmMain;
    // The frame's top is not added: it lies at the top of the window.
    frmMain.mnuBackup.popUp(frmMain.fmBrowse.left + frmMain.cmdBackupHDD.left,
                            frmMain.cmdBackupHDD.top + frmMain.cmdBackupHDD.height);
}

void CopyGames::copyToDisk(const QString& entry) {
    if (const auto game = focusedGame())
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
    return Game{row.text, row.subItems.value(kTypeColumn)};
}

bool CopyGames::severalSelected() {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    int selected = 0;
    for (int i = 0; i < lstHD.count(); ++i)
        selected += lstHD.row(i).selected ? 1 : 0;
    if (selected < 2)
        return false;
    shared_.message("This command does not support multiple games.");
    return true;
}

} // namespace tarnwell

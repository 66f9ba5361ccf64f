#include "workflows/rename_game.h"

#include "base/text_primitives.h"
#include "interpreter/tool_commands.h"
#include "workflows/hourglass.h"
#include "workflows/listed_device.h"

namespace tarnwell {

RenameGame::RenameGame(Shared& shared, ToolChannel& channel, const GuiSwitch& guiSwitch)
    : shared_(shared), channel_(channel), guiSwitch_(guiSwitch) {
    shared_.frmMain.lstHD.AfterLabelEdit = [this](bool& cancel, int row, const QString& newName) {
        // Never taken over by the list itself: it is read anew before this ends, and then the row can be
        // another game's.
        cancel = true;
        if (accepts(row, newName) && requireIdleTool(shared_, channel_))
            rename(row, newName);
    };
}

bool RenameGame::accepts(int row, const QString& newName) {
    // A job that deletes sets no flag, and the list stays usable. Read anew, it would make Install Now usable
    // too, in the middle of the queue.
    if (Trim(newName).isEmpty() || shared_.jobRunning() || guiSwitch_.paused())
        return false;
    const ui::ListView::Row& game = shared_.frmMain.lstHD.row(row);
    if (!requireListedDisk(shared_, game.tag))
        return false;
    if (newName.toLower() != game.text.toLower())
        return true;
    shared_.message(
        "This command does not work for changing the case of character(s) in a game name. The name "
        "must be *different* in some way for it to work.");
    return false;
}

void RenameGame::rename(int row, const QString& newName) {
    ui::FrmMain& frmMain = shared_.frmMain;
    const Hourglass hourglass(frmMain);
    const QString oldName = frmMain.lstHD.row(row).text;
    frmMain.lstHD.setText(row, newName);
    // The address stands in the device's place for a local disk too.
    channel_.Tarn_Execute(RenameCommand(frmMain.txtIP.text, oldName, newName));
    frmMain.cmdAttach.Click();
}

} // namespace tarnwell

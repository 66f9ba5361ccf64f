#include "workflows/delete_games.h"

#include "interpreter/tool_commands.h"
#include "status/wait_seconds.h"
#include "work/work_under_way.h"
#include "workflows/command_arguments.h"
#include "workflows/hourglass.h"
#include "workflows/listed_device.h"

namespace tarnwell {

namespace {

/// The disk comes to rest before the next command.
constexpr double kRestSeconds = 1;

/// Every name is followed by the separator, the last one too.
QString listed(const QStringList& names, const QString& separator) {
    QString text;
    for (const QString& name : names)
        text += name + separator;
    return text;
}

} // namespace

DeleteGames::DeleteGames(Shared& shared, ToolChannel& channel, JobList& jobList)
    : shared_(shared), channel_(channel), jobList_(jobList) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmdDelete.Click = [&frmMain] { frmMain.mnuDelete.popUpBelow(frmMain.cmdDelete); };
    frmMain.mnuDeleteNow.Click = [this] { deleteNow(); };
    frmMain.mnuDeleteQueue.Click = [this] { deleteByQueue(); };
}

void DeleteGames::deleteNow() {
    const QStringList games = selectedGames();
    if (!requireListedDisks() ||
        !confirmed("Are you sure you would like to permanently delete the following game(s)?", games))
        return;
    if (!requireIdleTool(shared_, channel_))
        return;
    bool ran = !games.isEmpty();
    {
        const WorkUnderWay work(shared_.ports);
        const Hourglass hourglass(shared_.frmMain);
        const QString device = ActiveDeviceShort(shared_.frmMain);
        for (const QString& game : games) {
            ran = channel_.Tarn_Execute(DeleteCommand(device, game)) && ran;
            WaitSeconds(kRestSeconds, shared_.ports);
        }
        shared_.frmMain.cmdAttach.Click();
    }
    if (ran)
        shared_.balloon(games.value(games.size() - 1) + " deleted from HDD");
}

void DeleteGames::deleteByQueue() {
    const QStringList games = selectedGames();
    if (!requireListedDisks() ||
        !confirmed("Are you sure you would like to add the following game(s) to the job queue for deletion?",
                   games))
        return;
    const QString device = ActiveDeviceShort(shared_.frmMain);
    for (const QString& game : games)
        jobList_.queueJob({.task = "Delete", .source = device, .name = game}, DeleteCommand(device, game));
    shared_.balloon("Delete " + listed(games, ", ") + " job(s) has been added to the job queue");
}

QStringList DeleteGames::selectedGames() const {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    QStringList names;
    for (int i = 0; i < lstHD.count(); ++i) {
        if (lstHD.row(i).selected)
            names += lstHD.row(i).text;
    }
    return names;
}

bool DeleteGames::requireListedDisks() {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    for (int i = 0; i < lstHD.count(); ++i) {
        if (lstHD.row(i).selected && !requireListedDisk(shared_, lstHD.row(i).tag))
            return false;
    }
    return true;
}

bool DeleteGames::confirmed(const QString& question, const QStringList& games) {
    return shared_.ports.dialogs.question(question + "\r\n\r\n" + listed(games, "\r\n"), shared_.title);
}

} // namespace tarnwell

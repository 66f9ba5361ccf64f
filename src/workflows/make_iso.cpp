#include "workflows/make_iso.h"

#include "app/fault.h"
#include "interpreter/text_primitives.h"
#include "interpreter/tool_commands.h"
#include "tool/tool_channel.h"

#include <QFile>

namespace tarnwell {

namespace {

/// The tool is given the same command for all of them: the kind is nothing but the name's ending.
const QString kImageKinds =
    QStringLiteral("ISO Files (*.iso)|*.iso|CUE Files (*.cue)|*.cue|Nero Burning Image (*.nrg)|*.nrg|"
                   "RecordNow! Global Image (*.gi)|*.gi|"
                   "Sony CD/DVD Generator's Intermediate (*.iml)|*.iml|");

} // namespace

MakeIso::MakeIso(Shared& shared, JobList& jobList) : shared_(shared), jobList_(jobList) {
    shared_.frmMain.cmdMakeISO.Click = [this] { makeIso(); };
}

void MakeIso::makeIso() {
    if (!requireTool(shared_))
        return;
    const QString name = shared_.frmMain.txtGameName.text;
    if (Trim(name).isEmpty()) {
        shared_.message("Please enter a name for the game.");
        return;
    }
    const auto path = shared_.ports.dialogs.saveFile({.filter = kImageKinds,
                                                      .folder = shared_.config.text("DefaultISO"),
                                                      .fileName = name + ".iso",
                                                      .extension = "*.iso",
                                                      .askBeforeOverwriting = true});
    if (!path || path->isEmpty())
        return;
    // The dialog has asked. A file that cannot be deleted is left for the tool to complain about.
    QFile::remove(*path);
    const QString drive = chosenDrive();
    jobList_.queueJob({.task = "Make ISO", .source = drive, .destination = *path, .name = name},
                      MakeImageCommand(drive, *path), kJobAdded);
}

QString MakeIso::chosenDrive() const {
    const ui::FrmMain& frmMain = shared_.frmMain;
    try {
        return ResolveOpticalDrive(frmMain, frmMain.cmbOptical.text());
    } catch (const Fault&) {
        // The job shows the gap, and its command can still be edited.
        return {};
    }
}

} // namespace tarnwell

#include "workflows/make_iso.h"

#include "base/fault.h"
#include "base/file_name.h"
#include "base/picked_path.h"
#include "base/text_primitives.h"
#include "interpreter/tool_commands.h"
#include "tool/tool_channel.h"
#include "workflows/command_arguments.h"

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
    const auto path = shared_.ports.dialogs.saveFile({.title = "Save Disc Image As",
                                                      .filter = kImageKinds,
                                                      .folder = shared_.config.text("DefaultISO"),
                                                      .fileName = PermittedFileName(name + ".iso"),
                                                      .extension = "*.iso",
                                                      .askBeforeOverwriting = true});
    if (!path || path->isEmpty())
        return;
    const auto file = NewNameInCodePage(shared_, *path);
    if (!file)
        return;
    // The dialog has asked. A file that cannot be deleted is left for the tool to complain about.
    QFile::remove(*file);
    const QString drive = chosenDrive();
    jobList_.queueJob({.task = "Make ISO", .source = drive, .destination = *file, .name = name},
                      MakeImageCommand(drive, *file), kJobAdded);
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

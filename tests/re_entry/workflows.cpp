#include "re_entry/workflows.h"

#include "ui/user_actions.h"

namespace tarnwell::test {

namespace {

void must(bool done, const char* what) {
    if (!done)
        throw std::logic_error(std::string("The scene cannot be set: ") + what);
}

void notYetStarted(Scene&) {}

void started(Scene& scene) {
    scene.program.start();
}

void consoleListed(Scene& scene) {
    started(scene);
    must(ui::click(scene.frmMain.cmdAttach), "refresh");
    must(scene.frmMain.cmdInstall.enabled, "games of the console");
}

void diskListed(Scene& scene) {
    started(scene);
    must(ui::click(scene.frmMain.optLocal), "local disks");
    must(ui::click(scene.frmMain.cmdAttach), "refresh");
}

void pickImage(Scene& scene) {
    scene.ports.dialogs.openFileAnswers.push_back(scene.path("lantern.iso"));
    must(ui::click(scene.frmMain.cmdISO), "image");
}

void imagePicked(Scene& scene) {
    consoleListed(scene);
    pickImage(scene);
}

void imagePickedForDisk(Scene& scene) {
    diskListed(scene);
    pickImage(scene);
}

void discRead(Scene& scene) {
    consoleListed(scene);
    must(ui::click(scene.frmMain.optOptical), "drives");
    must(scene.frmMain.cmdMakeISO.enabled, "disc");
}

void gameSelected(Scene& scene) {
    consoleListed(scene);
    must(ui::click(scene.frmMain.optBrowse), "browse");
    scene.frmMain.lstHD.select(0);
}

void gameOfDiskSelected(Scene& scene) {
    diskListed(scene);
    must(ui::click(scene.frmMain.optBrowse), "browse");
    scene.frmMain.lstHD.select(0);
}

/// The games of the first disk are still on view.
void anotherDiskChosen(Scene& scene) {
    gameOfDiskSelected(scene);
    must(ui::choose(scene.frmMain.cmbHD, 1), "the second disk");
}

void powerActionsWanted(Scene& scene) {
    scene.shared.config.write("TurnOffPC", "1");
    scene.shared.config.write("TurnOffPS2", "1");
    scene.shared.config.write("ClosePS2", "1");
}

void addJobsOfAllKinds(Scene& scene) {
    FakeDialogs& dialogs = scene.ports.dialogs;
    ui::FrmMain& frmMain = scene.frmMain;
    pickImage(scene);
    must(ui::click(frmMain.cmdAddGame), "install job");
    must(ui::click(frmMain.optBrowse), "browse");
    frmMain.lstHD.select(1);
    dialogs.saveFileAnswers.push_back(scene.path("copy.iso"));
    must(ui::click(frmMain.cmdBackupPC), "copy to PC");
    dialogs.inputAnswers.push_back("10.0.0.9");
    must(ui::click(frmMain.cmdBackupPS2), "copy to PS2");
    must(ui::click(frmMain.mnuHDD[1]), "copy to HDD");
    must(ui::click(frmMain.mnuDeleteQueue), "delete job");
    must(ui::click(frmMain.optInstall), "install page");
    must(ui::click(frmMain.optOptical), "drives");
    dialogs.saveFileAnswers.push_back(scene.path("disc.iso"));
    must(ui::click(frmMain.cmdMakeISO), "image job");
    must(frmMain.lstJob.count() == 6, "six jobs");
    must(ui::click(frmMain.optBrowse), "browse");
    must(ui::click(frmMain.optJobQueue), "job page");
}

void jobsForConsole(Scene& scene) {
    consoleListed(scene);
    addJobsOfAllKinds(scene);
    powerActionsWanted(scene);
}

void jobsForDisk(Scene& scene) {
    diskListed(scene);
    addJobsOfAllKinds(scene);
}

void imagePickedAndPowerActionsWanted(Scene& scene) {
    imagePicked(scene);
    powerActionsWanted(scene);
}

void settingsOpen(Scene& scene) {
    consoleListed(scene);
    must(ui::click(scene.frmMain.cmdSettings), "settings");
}

void toolsPageOpen(Scene& scene) {
    settingsOpen(scene);
    must(ui::selectTab(scene.frmSettings.TabStrip, ui::FrmSettings::kToolsTab), "tools");
}

void disksListed(Scene& scene) {
    toolsPageOpen(scene);
    must(ui::click(scene.frmSettings.cmdRefresh), "disks");
    must(ui::choose(scene.frmSettings.cmbHD, 0), "a disk");
}

void dropImages(Scene& scene) {
    must(ui::dropFiles(scene.frmMain, {scene.path("lantern.iso"), scene.path("chosen.iso")}), "a drop");
}

void consoleToBeTurnedOff(Scene& scene) {
    consoleListed(scene);
    powerActionsWanted(scene);
}

} // namespace

const std::vector<Workflow>& workflows() {
    static const std::vector<Workflow> all = {
        {"start", notYetStarted, started},
        {"refresh a console", started, [](Scene& s) { ui::click(s.frmMain.cmdAttach); }},
        {"refresh a disk", diskListed, [](Scene& s) { ui::click(s.frmMain.cmdAttach); }},
        {"choose the local disks", consoleListed, [](Scene& s) { ui::click(s.frmMain.optLocal); }},
        {"turn the console off", consoleListed, [](Scene& s) { ui::click(s.frmMain.cmdShutdownPS2); }},
        {"pick an image", consoleListed, [](Scene& s) { ui::click(s.frmMain.cmdISO); }},
        {"drop images onto a console", consoleListed, dropImages},
        {"drop images onto a disk", diskListed, dropImages},
        {"choose the drives", consoleListed, [](Scene& s) { ui::click(s.frmMain.optOptical); }},
        {"read a disc", discRead, [](Scene& s) { ui::choose(s.frmMain.cmbOptical, 0); }},
        {"install onto a console", imagePickedAndPowerActionsWanted,
         [](Scene& s) { ui::click(s.frmMain.cmdInstall); }},
        {"install onto a disk", imagePickedForDisk, [](Scene& s) { ui::click(s.frmMain.cmdInstall); }},
        {"install from a disc", discRead, [](Scene& s) { ui::click(s.frmMain.cmdInstall); }},
        {"run a queue for a console", jobsForConsole, [](Scene& s) { ui::click(s.frmMain.cmdStart); }},
        {"run a queue for a disk", jobsForDisk, [](Scene& s) { ui::click(s.frmMain.cmdStart); }},
        {"queue an install", imagePicked, [](Scene& s) { ui::click(s.frmMain.cmdAddGame); }},
        {"queue an image of a disc", discRead, [](Scene& s) { ui::click(s.frmMain.cmdMakeISO); }},
        {"queue a copy to the PC", gameSelected, [](Scene& s) { ui::click(s.frmMain.cmdBackupPC); }},
        {"queue a copy to a console", gameSelected, [](Scene& s) { ui::click(s.frmMain.cmdBackupPS2); }},
        {"queue a copy to a disk", gameSelected, [](Scene& s) { ui::click(s.frmMain.mnuHDD[1]); }},
        {"edit a job", jobsForConsole, [](Scene& s) { ui::pressMouse(s.frmMain.lstJob, 2); }},
        {"delete now", gameSelected, [](Scene& s) { ui::click(s.frmMain.mnuDeleteNow); }},
        {"queue a delete", gameSelected, [](Scene& s) { ui::click(s.frmMain.mnuDeleteQueue); }},
        {"rename", gameSelected, [](Scene& s) { ui::editLabel(s.frmMain.lstHD, 0, "New Name"); }},
        {"delete now from a disk", gameOfDiskSelected, [](Scene& s) { ui::click(s.frmMain.mnuDeleteNow); }},
        {"rename on a disk", gameOfDiskSelected,
         [](Scene& s) { ui::editLabel(s.frmMain.lstHD, 0, "New Name"); }},
        {"queue a copy of a disk's game to the PC", gameOfDiskSelected,
         [](Scene& s) { ui::click(s.frmMain.cmdBackupPC); }},
        {"queue a copy of a disk's game to a disk", gameOfDiskSelected,
         [](Scene& s) { ui::click(s.frmMain.mnuHDD[1]); }},
        {"refresh another disk", anotherDiskChosen, [](Scene& s) { ui::click(s.frmMain.cmdAttach); }},
        {"delete now from another disk", anotherDiskChosen,
         [](Scene& s) { ui::click(s.frmMain.mnuDeleteNow); }},
        {"queue a delete from another disk", anotherDiskChosen,
         [](Scene& s) { ui::click(s.frmMain.mnuDeleteQueue); }},
        {"rename on another disk", anotherDiskChosen,
         [](Scene& s) { ui::editLabel(s.frmMain.lstHD, 0, "New Name"); }},
        {"queue a copy from another disk to the PC", anotherDiskChosen,
         [](Scene& s) { ui::click(s.frmMain.cmdBackupPC); }},
        {"queue a copy from another disk to a console", anotherDiskChosen,
         [](Scene& s) { ui::click(s.frmMain.cmdBackupPS2); }},
        {"queue a copy from another disk to a disk", anotherDiskChosen,
         [](Scene& s) { ui::click(s.frmMain.mnuHDD[0]); }},
        {"export the list", gameSelected, [](Scene& s) { ui::click(s.frmMain.cmdSaveList); }},
        {"open the settings", consoleListed, [](Scene& s) { ui::click(s.frmMain.cmdSettings); }},
        {"save the settings", settingsOpen, [](Scene& s) { ui::click(s.frmSettings.cmdExit); }},
        {"use defaults", settingsOpen, [](Scene& s) { ui::click(s.frmSettings.cmdDefaults); }},
        {"list the disks", toolsPageOpen, [](Scene& s) { ui::click(s.frmSettings.cmdRefresh); }},
        {"format", disksListed, [](Scene& s) { ui::click(s.frmSettings.cmdFormat); }},
        {"save a table", disksListed, [](Scene& s) { ui::click(s.frmSettings.cmdBackupTOC); }},
        {"restore a table", disksListed, [](Scene& s) { ui::click(s.frmSettings.cmdRestoreTOC); }},
        {"exit", consoleToBeTurnedOff, [](Scene& s) { ui::click(s.frmMain.cmdExit); }},
    };
    return all;
}

} // namespace tarnwell::test

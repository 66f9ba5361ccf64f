#include "queue/job_list.h"

#include "base/text_primitives.h"

namespace tarnwell {

namespace {

constexpr int kRightButton = 2;

} // namespace

JobList::JobList(Shared& shared) : shared_(shared), jobs_(shared) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmdRemove.Click = [this] { removeSelected(); };
    frmMain.cmdClear.Click = [this] { clear(); };
    frmMain.lstJob.MouseDown = [this](int button) { pressMouse(button); };
}

void JobList::queueJob(const Job& job, const QString& command) {
    jobs_.AddJob(job);
    jobs_.setCommand(jobs_.count() - 1, command);
    enableButtons(true);
}

void JobList::queueJob(const Job& job, const QString& command, const QString& balloonText) {
    queueJob(job, command);
    shared_.balloon(balloonText);
}

void JobList::removeSelected() {
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    const int row = lstJob.selectedRow();
    if (row >= 0)
        lstJob.remove(row);
    if (lstJob.count() == 0)
        enableButtons(false);
}

void JobList::clear() {
    shared_.frmMain.lstJob.clear();
    enableButtons(false);
}

void JobList::enableButtons(bool enable) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmdStart.enabled = enable;
    frmMain.cmdRemove.enabled = enable;
    frmMain.cmdClear.enabled = enable;
}

void JobList::pressMouse(int button) {
    const int row = shared_.frmMain.lstJob.selectedRow();
    if (button == kRightButton && row >= 0)
        editCommand(row);
}

void JobList::editCommand(int row) {
    if (!jobs_.editable(row)) {
        shared_.message("You cannot edit the command-line for jobs that are completed or currently active.");
        return;
    }
    const auto answer =
        shared_.ports.dialogs.input("Make changes and click OK to save.", "Edit command", jobs_.command(row));
    if (answer && !Trim(*answer).isEmpty())
        jobs_.setCommand(row, *answer);
}

} // namespace tarnwell

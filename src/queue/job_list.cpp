#include "queue/job_list.h"

#include "interpreter/text_primitives.h"
#include "queue/job_result.h"

namespace tarnwell {

namespace {

constexpr int kRightButton = 2;

} // namespace

JobList::JobList(Shared& shared) : shared_(shared) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.cmdRemove.Click = [this] { removeSelected(); };
    frmMain.cmdClear.Click = [this] { clear(); };
    frmMain.lstJob.MouseDown = [this](int button) { pressMouse(button); };
}

void JobList::queueJob(const Job& job, const QString& command) {
    AddJob(job);
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    lstJob.setTag(lstJob.count() - 1, command);
    enableButtons(true);
}

void JobList::queueJob(const Job& job, const QString& command, const QString& balloonText) {
    queueJob(job, command);
    shared_.balloon(balloonText);
}

void JobList::AddJob(const Job& job) {
    shared_.frmMain.lstJob.append(
        {.text = kPending,
         .subItems = {job.task, job.source, job.destination, job.name, job.startup, job.type, job.flags}});
}

void JobList::removeSelected() {
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    const int row = lstJob.selectedItem;
    // The row that has the focus need not be selected.
    if (row >= 0 && lstJob.row(row).selected)
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
    const int row = shared_.frmMain.lstJob.selectedItem;
    if (button == kRightButton && row >= 0)
        editCommand(row);
}

void JobList::editCommand(int row) {
    ui::ListView& lstJob = shared_.frmMain.lstJob;
    const QString& result = lstJob.row(row).text;
    if (result == kActive || result == kComplete) {
        shared_.message("You cannot edit the command-line for jobs that are completed or currently active.");
        return;
    }
    const auto answer = shared_.ports.dialogs.input("Make changes and click OK to save.", "Edit command",
                                                    lstJob.row(row).tag);
    if (answer && !Trim(*answer).isEmpty())
        lstJob.setTag(row, *answer);
}

} // namespace tarnwell

#pragma once

#include "app/enable_gui.h"
#include "queue/completion_actions.h"
#include "queue/sounds.h"
#include "services/status_server.h"

namespace tarnwell {

/// Runs the jobs of the list from top to bottom, one run of the tool after the other, until the list is
/// exhausted or the user cancels. A failed job stays in the list with its words of failure and stops nothing.
/// The next start runs everything again that is not complete.
class QueueRunner {
public:
    QueueRunner(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
                CompletionActions& completionActions, Sounds& sounds, StatusServer& statusServer);

private:
    void start();
    void openStatus();
    void resetResults();
    void runJobs();
    void runJob();
    void showJob(const QString& command);
    void deleteGame(const QString& command);
    void transfer(const QString& command);
    void abortRest();
    void finish();
    void refreshGameList();
    void setResult(const QString& result);

    int row() const { return shared_.intJobIndex - 1; }

    Shared& shared_;
    ToolChannel& channel_;
    cStdIO& StdIO_;
    GuiSwitch& guiSwitch_;
    CompletionActions& completionActions_;
    Sounds& sounds_;
    StatusServer& statusServer_;
};

/// Whether a job of the list, whatever became of it, writes to the active device or deletes from it. Rows
/// name a local disk by less than its entry in the list of disks, so only a networked console is ever
/// recognised.
bool QueueTouchesDevice(const ui::FrmMain& frmMain);

} // namespace tarnwell

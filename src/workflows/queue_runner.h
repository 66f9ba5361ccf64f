#pragma once

#include "services/status_server.h"
#include "status/jobs.h"
#include "work/completion_actions.h"
#include "work/enable_gui.h"
#include "work/sounds.h"

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
    void runJobs();
    void runJob();
    void showJob(const QString& command);
    void deleteGame(const QString& command);
    void transfer(const QString& command);
    void finish();
    void refreshGameList();
    bool QueueTouchesDevice() const;

    int row() const { return shared_.intJobIndex - 1; }

    Shared& shared_;
    Jobs jobs_;
    ToolChannel& channel_;
    cStdIO& StdIO_;
    GuiSwitch& guiSwitch_;
    CompletionActions& completionActions_;
    Sounds& sounds_;
    StatusServer& statusServer_;
};

} // namespace tarnwell

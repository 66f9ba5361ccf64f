#pragma once

#include "tool/std_io.h"

namespace tarnwell {

/// The buttons of the window that follows a running job.
class StatusWindow {
public:
    StatusWindow(Shared& shared, cStdIO& StdIO);

private:
    void stop();
    void offerEndByForce();
    void refuseToCloseDuringWork(bool& cancel);

    Shared& shared_;
    cStdIO& StdIO_;
    qint32 stoppedAtTick_ = 0; ///< when the run that is under way was cancelled first
};

/// After a cancel: waits, without a limit, until the tool has gone, and says so in the status window
/// meanwhile.
void WaitForCancelledTool(Shared& shared, cStdIO& StdIO);

/// Puts the status window in the middle of the main window.
void CentreStatusWindow(Shared& shared);

/// At the end of work: hides the status window if the user wants that. Its texts stay for the next run.
void CloseStatusWindowIfWanted(Shared& shared);

} // namespace tarnwell

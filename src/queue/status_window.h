#pragma once

#include "tool/std_io.h"

namespace tarnwell {

/// The buttons of the window that follows a running job.
class StatusWindow {
public:
    StatusWindow(Shared& shared, cStdIO& StdIO);

private:
    void stop();
    void refuseToCloseDuringWork(bool& cancel);

    Shared& shared_;
    cStdIO& StdIO_;
};

} // namespace tarnwell

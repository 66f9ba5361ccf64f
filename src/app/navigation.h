#pragma once

#include "base/shared.h"

namespace tarnwell {

/// Switching between the pages of the main window, and the activity frame with the tool's output.
class Navigation {
public:
    explicit Navigation(Shared& shared);

private:
    void goBackFromJobs();
    void showActivity();
    void scrollOutputToEnd();

    Shared& shared_;
};

} // namespace tarnwell

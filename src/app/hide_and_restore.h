#pragma once

#include "base/shared.h"

namespace tarnwell {

/// Hiding the windows to the tray and bringing them back. The caption of mnuMinimize is the state: "Minimize"
/// while the main window is up, "Maximize" while it is hidden.
class HideAndRestore {
public:
    explicit HideAndRestore(Shared& shared);

    void restore();

private:
    void hideMain();
    void clickMinimizeEntry();

    Shared& shared_;
};

} // namespace tarnwell

#pragma once

#include "ui/form.h"

#include <vector>

namespace tarnwell {

/// Pauses the main window while long work runs, so that no second command can be started, and restores it.
/// What only looks stays usable: the frames, the lists, the tool's output, the switches between the pages,
/// hiding the window.
class GuiSwitch {
public:
    explicit GuiSwitch(ui::Form& frmMain) : frmMain_(frmMain) {}

    /// Callers pair the two: a second `false` in a row would remember the paused state.
    void EnableGUI(bool enable);
    bool paused() const { return paused_; }

private:
    void pause();
    void restore();

    ui::Form& frmMain_;
    bool paused_ = false;
    std::vector<bool> blnControlState_; ///< one entry a control, in the order of the collection
};

} // namespace tarnwell

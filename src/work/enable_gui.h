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

    /// A second `false` in a row would remember the paused state: long work takes a PauseOfMainWindow.
    void EnableGUI(bool enable);
    bool paused() const { return paused_; }

private:
    void pause();
    void restore();

    ui::Form& frmMain_;
    bool paused_ = false;
    std::vector<bool> blnControlState_; ///< one entry a control, in the order of the collection
};

/// Long work keeps one of these for as long as it runs. Work inside work finds the window paused already, and
/// leaves its restoring to the work that began first.
class PauseOfMainWindow {
public:
    explicit PauseOfMainWindow(GuiSwitch& guiSwitch)
        : guiSwitch_(guiSwitch), outermost_(!guiSwitch.paused()) {
        if (outermost_)
            guiSwitch_.EnableGUI(false);
    }
    ~PauseOfMainWindow() {
        if (outermost_)
            guiSwitch_.EnableGUI(true);
    }
    PauseOfMainWindow(const PauseOfMainWindow&) = delete;
    PauseOfMainWindow& operator=(const PauseOfMainWindow&) = delete;

private:
    GuiSwitch& guiSwitch_;
    const bool outermost_;
};

} // namespace tarnwell

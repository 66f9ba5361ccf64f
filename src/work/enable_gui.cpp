#include "work/enable_gui.h"

#include <QSet>

namespace tarnwell {

namespace {

bool staysOn(const QString& name) {
    static const QSet<QString> names = {
        "chkOutput",  "optInstall", "optBrowse",    "optJobQueue",    "cmdMinimize",
        "fmMain",     "fmInstall",  "fmBrowse",     "fmJob",          "fmOutput",
        "txtOutput",  "txtCommand", "lblCommand",   "fmNavigation",   "lstHD",
        "lstJob",     "Label8",     "lblDiskSpace", "Frame1",         "lblIP",
        "fmHDDSpace", "lblSource",  "lblGameInfo",  "lblCommandLine", "cmdControls"};
    return names.contains(name);
}

} // namespace

void GuiSwitch::EnableGUI(bool enable) {
    paused_ = !enable;
    if (enable)
        restore();
    else
        pause();
}

void GuiSwitch::pause() {
    blnControlState_.clear();
    for (const ui::Control* control : frmMain_.controls())
        blnControlState_.push_back(control->enabled);
    for (ui::Control* control : frmMain_.controls()) {
        if (control->hasEnabled() && !staysOn(control->name))
            control->enabled = false;
    }
}

void GuiSwitch::restore() {
    for (std::size_t i = 0; i < blnControlState_.size(); ++i) {
        if (ui::Control* control = frmMain_.controls()[i]; control->hasEnabled())
            control->enabled = blnControlState_[i];
    }
}

} // namespace tarnwell

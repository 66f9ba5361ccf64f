#include "support/gtest_qt.h"
#include "ui/frm_main.h"
#include "work/enable_gui.h"

#include <gtest/gtest.h>

using namespace tarnwell;

namespace {

QStringList enabledControls(const ui::FrmMain& frmMain) {
    QStringList names;
    for (const ui::Control* control : frmMain.controls()) {
        if (control->hasEnabled() && control->enabled)
            names += control->name;
    }
    return names;
}

} // namespace

TEST(EnableGUI, LeavesOnlyLookingAndSwitchingOn) {
    ui::FrmMain frmMain;
    GuiSwitch(frmMain).EnableGUI(false);
    EXPECT_EQ(
        enabledControls(frmMain).join(' '),
        "fmMain lblIP fmHDDSpace lblDiskSpace fmNavigation optInstall optBrowse optJobQueue chkOutput "
        "cmdMinimize fmOutput lblCommand txtCommand txtOutput fmInstall lblSource lblGameInfo fmBrowse lstHD "
        "fmJob lstJob cmdControls lblCommandLine");
}

TEST(EnableGUI, RestoresWhatWasOnBefore) {
    ui::FrmMain frmMain;
    frmMain.cmdInstall.enabled = true;
    frmMain.cmdISO.enabled = false;
    const QStringList before = enabledControls(frmMain);
    GuiSwitch guiSwitch(frmMain);
    guiSwitch.EnableGUI(false);
    guiSwitch.EnableGUI(true);
    EXPECT_EQ(enabledControls(frmMain), before);
}

TEST(EnableGUI, TwicePausedStaysPaused) {
    ui::FrmMain frmMain;
    GuiSwitch guiSwitch(frmMain);
    guiSwitch.EnableGUI(false);
    guiSwitch.EnableGUI(false);
    guiSwitch.EnableGUI(true);
    EXPECT_FALSE(frmMain.cmdAttach.enabled);
    EXPECT_TRUE(frmMain.cmdMinimize.enabled);
}

TEST(EnableGUI, LeavesTheMenusAlone) {
    ui::FrmMain frmMain;
    GuiSwitch(frmMain).EnableGUI(false);
    EXPECT_TRUE(frmMain.mnuExit.enabled);
    EXPECT_TRUE(frmMain.mnuMinimize.enabled);
}

#include "support/program_test.h"

/// The order of what happens when the device changes.
namespace tarnwell::test {

namespace {

struct DeviceSteps : ProgramTest {
    DeviceSteps() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        start();
    }
};

} // namespace

TEST_F(DeviceSteps, TheMissingToolIsToldBeforeTheWayBackToLan) {
    removeTool();
    bool stillLocal = false;
    ports.dialogs.whileOpen = [&] { stillLocal = frmMain.optLocal.value; };
    ui::click(frmMain.optLocal);
    EXPECT_TRUE(stillLocal);
}

TEST_F(DeviceSteps, MissingDisksAreToldWhenTheAddressIsBackOnView) {
    answerQueryWith("\thdd1:  114473MB, unknown\r\n");
    bool backOnLan = false;
    ports.dialogs.whileOpen = [&] { backOnLan = frmMain.optLAN.value; };
    ui::click(frmMain.optLocal);
    EXPECT_TRUE(backOnLan);
}

TEST_F(DeviceSteps, SeekingTheDisksEmptiesTheirListAndTheCountOfGames) {
    ui::click(frmMain.cmdAttach);
    ports.launcher.on("tarnwell.exe query", {.output = {{kTwoDisks, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] {
        EXPECT_EQ(frmMain.cmbHD.listCount(), 0);
        EXPECT_EQ(frmMain.fmBrowse.caption.get(), "Browse, Backup, and Delete - 0 Games");
    });
    ui::click(frmMain.optLocal);
    EXPECT_EQ(frmMain.cmbHD.listCount(), 2);
}

TEST_F(DeviceSteps, ShuttingDownShowsItsCommandThenGivesTheDeviceUpThenSendsIt) {
    ui::click(frmMain.cmdAttach);
    const QStringList before = commands();
    // The drawing of the empty bar lets events in.
    ports.pump.queue([&] {
        EXPECT_EQ(frmMain.txtCommand.text.get(), "poweroff 192.168.0.10");
        EXPECT_EQ(frmMain.txtOutput.text.get(), "");
        EXPECT_EQ(frmMain.lstHD.count(), 0);
        EXPECT_FALSE(frmMain.cmdDelete.enabled);
        EXPECT_EQ(commands(), before);
    });
    ui::click(frmMain.cmdShutdownPS2);
    EXPECT_EQ(commands(), before + QStringList("poweroff 192.168.0.10"));
}

} // namespace tarnwell::test

#include "logic/install_fixture.h"
#include "ui/version.h"

/// How an install that is not queued comes to its end: by itself, by Cancel, by a fault, with the program.
namespace tarnwell::test {

namespace {

struct InstallEndings : InstallNow {};

} // namespace

TEST_F(InstallEndings, TheStatusWindowStaysIfTheSettingsSaySo) {
    program.shared().frmSettings->chkCloseStatus.value = 0;
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(frmStatus->shown());
}

TEST_F(InstallEndings, CancelInterruptsTheToolAndSkipsTheCompletionActions) {
    store("TurnOffPC", "1");
    answerInstallWith({.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100}},
                       .endsAtMs = 100000000,
                       .farewellTakesMs = 3000});
    qint64 cancelled = 0;
    ports.pump.after(2000, [&] {
        EXPECT_TRUE(ui::click(frmStatus->cmdStop));
        cancelled = ports.clock.now;
        EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_GE(ports.clock.now - cancelled, 3000) << "the tool was waited for";
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_EQ(balloons().size(), 2);
    EXPECT_FALSE(program.shared().blnInstallRunning);
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10") << "the list is refreshed all the same";
    EXPECT_EQ(commands().filter("inject").size(), 1);
}

TEST_F(InstallEndings, ASecondCancelDoesNothingMore) {
    answerInstallWith({.output = {{"1%\r", 100}}, .endsAtMs = 100000000, .farewellTakesMs = 3000});
    ports.pump.after(2000, [&] { ui::click(frmStatus->cmdStop); });
    ports.pump.after(3000, [&] { ui::click(frmStatus->cmdStop); });
    ui::click(frmMain.cmdInstall);
    const auto& install =
        *std::find_if(ports.launcher.children.begin(), ports.launcher.children.end(),
                      [](const auto& child) { return child->commandLine.contains("inject"); });
    EXPECT_EQ(install->interrupts, 1);
}

TEST_F(InstallEndings, CancelAfterAHundredPercentDoesNotWaitButStillSkipsTheCompletionActions) {
    store("TurnOffPC", "1");
    answerInstallWith({.output = {{"100%\r", 100}}, .endsAtMs = 60000, .heedsInterrupt = false});
    ports.pump.after(500, [&] { ui::click(frmStatus->cmdStop); });
    bool finished = false;
    ports.pump.after(1000, [&] { finished = frmMain.cmdExit.enabled && !frmStatus->shown(); });
    const qint64 start = ports.clock.now;
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(finished);
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_EQ(balloons().size(), 2);
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10");
    EXPECT_GE(ports.clock.now - start, 60000) << "no second tool beside the one that was told to stop";
}

TEST_F(InstallEndings, CancelBeforeTheFirstOutputStartsTheToolAnewTwoSecondsLater) {
    answerInstallWith({.output = {{"1%\r", 5000}}, .endsAtMs = 10000, .farewell = {}});
    ports.pump.after(1000, [&] { ui::click(frmStatus->cmdStop); });
    ports.pump.after(8500, [&] { ui::click(frmStatus->cmdStop); });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(commands().filter("inject").size(), 2);
    EXPECT_EQ(ports.power.shutDowns, 0);
}

TEST_F(InstallEndings, AFailedInstallEndsLikeASuccessfulOne) {
    answerInstallWith({.output = {{"not enough free space.\r\n", 100}}, .endsAtMs = 200});
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons().last(), "Installation of LANTERN complete!");
    EXPECT_FALSE(program.shared().blnInstallRunning);
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10");
}

TEST_F(InstallEndings, AnInstallThatBreaksOffLeavesTheWindowUsable) {
    ports.launcher.script = [](const QString&) -> std::optional<ChildScript> {
        throw std::runtime_error("out of memory");
    };
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(lastMessage().contains("out of memory"));
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_FALSE(program.shared().blnInstallRunning);
}

TEST_F(InstallEndings, AToolThatSaysNothingIsToldAndTheWindowComesToItself) {
    answerInstallWith({});
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.dialogs.messageTexts().value(0).startsWith("An unknown error has occurred."));
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
    EXPECT_FALSE(frmStatus->shown());
}

TEST_F(InstallEndings, AConsoleThatHasGoneIsNotRefreshed) {
    ports.pump.after(2000, [this] { ports.ping.reply = {.status = FakePing::kTimedOut}; });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(commands().last().startsWith("inject"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallEndings, ThePowerActionsFollowTheStatusWindow) {
    store("TurnOffPS2", "1");
    store("TurnOffPC", "1");
    ports.pump.after(1000, [this] {
        EXPECT_EQ(frmStatus->chkShutdown.value, 1);
        EXPECT_EQ(frmStatus->chkShutdownPS2.value, 1);
        ui::click(frmStatus->chkShutdown);
        ui::click(frmStatus->chkStandby);
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_EQ(ports.power.standBys, 1);
    EXPECT_EQ(stored("TurnOffPC"), "1") << "a tick counts for this run alone";
    EXPECT_EQ(commands().filter("poweroff"), QStringList("poweroff 192.168.0.10"));
}

TEST_F(InstallEndings, AStoreWithBothPowerActionsShutsDown) {
    store("TurnOffPC", "1");
    store("StandbyPC", "1");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.power.shutDowns, 1);
    EXPECT_EQ(ports.power.standBys, 0);
}

TEST_F(InstallEndings, ALocalDiskNeverTurnsTheConsoleOff) {
    store("TurnOffPS2", "1");
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(commands().filter("poweroff"), QStringList());
    EXPECT_EQ(frmStatus->chkShutdownPS2.value, 0);
}

TEST_F(InstallEndings, ClosingTheStatusWindowDuringTheRunMinimisesIt) {
    ports.pump.after(2500, [this] {
        EXPECT_FALSE(ui::close(frmStatus.untouched()));
        EXPECT_TRUE(frmStatus->shown());
        EXPECT_EQ(frmStatus->windowState, ui::WindowState::Minimised);
    });
    QStringList captions;
    frmStatus->caption.changed.connect([&] { captions += frmStatus->caption.get(); });
    ui::click(frmMain.cmdInstall);
    ASSERT_FALSE(captions.isEmpty());
    EXPECT_TRUE(captions[0].startsWith("100% Complete [4.00 MB/sec"));
}

TEST_F(InstallEndings, ExitDuringTheRunEndsTheProgramWithNoLaterStep) {
    ports.pump.after(2500, [this] { ui::click(frmMain.mnuExit); });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(commands().last().startsWith("inject")) << "neither waited for nor refreshed";
    EXPECT_EQ(ports.launcher.children.back()->interrupts, 0);
    EXPECT_TRUE(ports.processes.closeRequests.empty());
    EXPECT_EQ(balloons().size(), 2);
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_FALSE(ports.tray.shown);
}

TEST_F(InstallEndings, ClosingTheMainWindowDuringTheRunEndsTheProgramToo) {
    ports.pump.after(2500, [this] {
        ui::click(frmMain.mnuMinimize);
        ui::close(frmMain);
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(commands().last().startsWith("inject"));
}

} // namespace tarnwell::test

#include "base/fault.h"
#include "support/program_test.h"
#include "ui/version.h"
#include "workflows/free_space.h"

#include <limits>

namespace tarnwell::test {

namespace {

/// A game of 4095 MB is ready to be installed onto the console.
struct InstallNow : ProgramTest {
    InstallNow() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        answerInstallWith({.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100},
                                      {"50%, 6 min remaining, 4.00 MB/sec\r", 2000},
                                      {"100%, 0 sec remaining, 4.00 MB/sec\r", 4000}},
                           .endsAtMs = 4100});
        start();
        ui::click(frmMain.cmdAttach);
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.cmdISO);
    }

    void answerInstallWith(const ChildScript& script) { ports.launcher.on("tarnwell.exe inject", script); }
    QString installCommand() const {
        for (const QString& command : commands()) {
            if (command.startsWith("inject"))
                return command;
        }
        return {};
    }
    void setSpace(const QString& freeMegabytes, const QString& gameMegabytes) {
        frmMain.picDiskSpace.tag = freeMegabytes;
        frmMain.txtGameSize.tag = gameMegabytes;
    }
};

} // namespace

TEST(RoundUp128, TakesWholeUnits) {
    EXPECT_EQ(RoundUp128(0), 0);
    EXPECT_EQ(RoundUp128(1), 128);
    EXPECT_EQ(RoundUp128(128), 128);
    EXPECT_EQ(RoundUp128(4097), 4224);
    EXPECT_EQ(RoundUp128(-100), 0);
    EXPECT_EQ(RoundUp128(-128), -128);
    EXPECT_EQ(RoundUp128(-129), -128);
    EXPECT_EQ(RoundUp128(std::numeric_limits<qint32>::min()), std::numeric_limits<qint32>::min());
}

TEST(RoundUp128, KnowsNoUnitsBeyondItsNumbers) {
    constexpr qint32 kMostUnits = 2'147'483'520;
    EXPECT_EQ(RoundUp128(kMostUnits - 1), kMostUnits);
    EXPECT_EQ(RoundUp128(kMostUnits), kMostUnits);
    EXPECT_THROW(RoundUp128(kMostUnits + 1), Fault);
    EXPECT_THROW(RoundUp128(std::numeric_limits<qint32>::max()), Fault);
}

TEST_F(InstallNow, InstallsAndFindsTheGameInTheRefreshedList) {
    answerTocWith(kTwoGames + "DVD  4193280KB                SLUS_990.71 @@@LANTERN\r\n");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "inject_dvd 192.168.0.10 LANTERN /games/lantern.iso SLUS_990.71");
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10");
    EXPECT_EQ(frmMain.lstHD.count(), 3);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallNow, TheStatusWindowFollowsTheJob) {
    ports.pump.after(2500, [this] {
        EXPECT_TRUE(frmStatus->shown());
        EXPECT_FALSE(frmMain.shown());
        EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "Installing LANTERN");
        EXPECT_EQ(frmStatus->lblTask.caption.get(), "Currently on Job 1 of 1");
        EXPECT_EQ(frmStatus->picCurrent.drawing.get().text, "50%");
        EXPECT_EQ(frmStatus->picOverall.drawing.get().text, "50%");
        EXPECT_EQ(frmStatus->lblRemaining.caption.get(), "6 min remaining");
        EXPECT_EQ(frmStatus->lblSpeed.caption.get().trimmed(), "Speed: 4.00 MB/sec");
        EXPECT_EQ(frmStatus->lblCurrentElapsed.caption.get(), "00:00:02");
        EXPECT_TRUE(ports.tray.tip().startsWith("50%\r\nSpeed: 4.00 MB/sec"));
        EXPECT_FALSE(frmMain.cmdAttach.enabled);
        EXPECT_TRUE(program.shared().blnInstallRunning);
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_FALSE(frmStatus->shown());
    EXPECT_FALSE(frmMain.shown()) << "only the user brings it back";
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
    EXPECT_FALSE(program.shared().blnInstallRunning);
}

TEST_F(InstallNow, TheStatusWindowIsCentredOverTheMainWindow) {
    frmMain.left = 1000;
    frmMain.top = 2000;
    frmStatus->windowState = ui::WindowState::Minimised;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(frmStatus->left, 1000 + frmMain.width / 2 - frmStatus->width / 2);
    EXPECT_EQ(frmStatus->top, 2000 + frmMain.height / 2 - frmStatus->height / 2);
}

TEST_F(InstallNow, BalloonsTellOfTheStartAndTheEnd) {
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons(), QStringList({"Installing LANTERN", "Installing [LANTERN] to [192.168.0.10]",
                                       "Installation of LANTERN complete!"}));
    EXPECT_EQ(ports.tray.balloons[0].title, "Tarnwell GUI");
}

TEST_F(InstallNow, AnyOtherNumberThanZeroTurnsTheBalloonsOff) {
    store("BalloonTips", "2");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(InstallNow, AMissingToolStartsNothing) {
    removeTool();
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(lastMessage(),
              "tarnwell.exe was not found. Place it in the same directory as this program and try again.");
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(installCommand(), "");
}

TEST_F(InstallNow, WhatIsMissingIsAskedFor) {
    frmMain.txtISO.text = QString();
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(lastMessage(), "Please select an ISO to install.");

    frmMain.txtISO.text = QString("/games/x.iso");
    ui::type(frmMain.txtGameName, "");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(lastMessage(), "Please enter a name for the game to install.");

    frmMain.optOptical.value = true;
    frmMain.optISO.value = false;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
    EXPECT_TRUE(balloons().isEmpty());
}

TEST_F(InstallNow, ADriveMustBeChosen) {
    answerQueryWith("\tcd0:  700 MB\r\n\tcd1:  700 MB\r\nvia SPTI:\r\n\tD: 700 MB\r\n\tE: 700 MB\r\n");
    ui::click(frmMain.optOptical);
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(lastMessage(), "Please select an optical drive with a PS2 game disc in it.");
}

TEST_F(InstallNow, AGameThatJustFitsIsTaken) {
    setSpace("4096", "4096");
    ui::click(frmMain.cmdInstall);
    EXPECT_NE(installCommand(), "");
}

TEST_F(InstallNow, AGameThatNeedsAnotherUnitIsRefusedWithTheSizeItNeeds) {
    setSpace("4200", "4097");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "");
    EXPECT_EQ(lastMessage(),
              "You do not have enough available space on your hard-drive to install this game."
              "\r\n\r\nTo install this game you need 4224MB and you only have 4200MB available.");
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(InstallNow, AHalfMegabyteGoesToTheEvenNumber) {
    setSpace("4096", "4096.5");
    ui::click(frmMain.cmdInstall);
    EXPECT_NE(installCommand(), "");
}

TEST_F(InstallNow, ASizeThatWasNeverReadIsToldAndStartsNothing) {
    setSpace("4096", "");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game is not known"));
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.shown());
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/lantern.iso");
}

TEST_F(InstallNow, ASizeBeyondAllDisksIsToldAndStartsNothing) {
    setSpace("4096", "2147483600");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game, 2147483600 MB, is more than any disk"));
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
}

TEST_F(InstallNow, NamesWithBlanksAreQuotedAndTheStartupFileNever) {
    frmMain.txtISO.text = QString("/my games/lantern.iso");
    ui::type(frmMain.txtGameName, "Lantern and Quill");
    ui::type(frmMain.txtGameStartup, "SLUS 990.71");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(),
              "inject_dvd 192.168.0.10 \"Lantern and Quill\" \"/my games/lantern.iso\" SLUS 990.71");
}

TEST_F(InstallNow, FlagsWithoutAStartupFileKeepTheirPlaceByTwoQuotes) {
    ui::click(frmMain.mnuFlags[0]);
    ui::click(frmMain.mnuFlags[2]);
    ui::type(frmMain.txtGameStartup, "");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "inject_dvd 192.168.0.10 LANTERN /games/lantern.iso \"\" +1+3");
}

TEST_F(InstallNow, NeitherFlagsNorStartupLeaveNoBlankAtTheEnd) {
    ui::type(frmMain.txtGameStartup, "");
    frmMain.cmbType.listIndex = 0;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "inject_cd 192.168.0.10 LANTERN /games/lantern.iso");
}

TEST_F(InstallNow, ALongNameInAnyAlphabetArrivesWhole) {
    const QString name = QString::fromUtf8("P\xc3\xa9rg\xc5\x8dla ").repeated(40) + "\"quoted\"";
    ui::type(frmMain.txtGameName, name);
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(installCommand().contains('"' + name + '"'));
}

TEST_F(InstallNow, ALocalDiskGoesByItsFirstFiveCharacters) {
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    frmMain.txtISO.text = QString("/games/lantern.iso");
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(installCommand().startsWith("inject_dvd hdd1: LANTERN"));
    EXPECT_EQ(commands().last(), "tarn_toc hdd1:");
    EXPECT_FALSE(frmStatus->chkShutdownPS2.enabled);
}

TEST_F(InstallNow, AnOpticalDriveGoesByTheSystemsNameOrElseTheTools) {
    answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
    ui::click(frmMain.optOptical);
    frmMain.cmbOptical.tag = QString("0,");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "inject_dvd 192.168.0.10 LANTERN cd0: SLUS_990.71");
}

TEST_F(InstallNow, ADriveThatTheLastQueryDoesNotKnowStartsNothing) {
    answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
    ui::click(frmMain.optOptical);
    frmMain.cmbOptical.tag = QString();
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(InstallNow, ThePageIsResetButFlagEightAndTheSizeBehindItStay) {
    ui::click(frmMain.mnuFlags[3]);
    ui::click(frmMain.mnuFlags[7]);
    frmMain.cmbType.listIndex = 0;
    frmMain.lblDVD9.visible = true;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(frmMain.txtISO.text.get(), "");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
    EXPECT_EQ(frmMain.cmbType.text(), "DVD-ROM");
    EXPECT_FALSE(frmMain.lblDVD9.visible);
    EXPECT_FALSE(frmMain.mnuFlags[3].checked);
    EXPECT_TRUE(frmMain.mnuFlags[7].checked);
}

TEST_F(InstallNow, TheStatusWindowStaysIfTheSettingsSaySo) {
    program.shared().frmSettings->chkCloseStatus.value = 0;
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(frmStatus->shown());
}

TEST_F(InstallNow, CancelInterruptsTheToolAndSkipsTheCompletionActions) {
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

TEST_F(InstallNow, ASecondCancelDoesNothingMore) {
    answerInstallWith({.output = {{"1%\r", 100}}, .endsAtMs = 100000000, .farewellTakesMs = 3000});
    ports.pump.after(2000, [&] { ui::click(frmStatus->cmdStop); });
    ports.pump.after(3000, [&] { ui::click(frmStatus->cmdStop); });
    ui::click(frmMain.cmdInstall);
    const auto& install =
        *std::find_if(ports.launcher.children.begin(), ports.launcher.children.end(),
                      [](const auto& child) { return child->commandLine.contains("inject"); });
    EXPECT_EQ(install->interrupts, 1);
}

TEST_F(InstallNow, CancelAfterAHundredPercentDoesNotWaitButStillSkipsTheCompletionActions) {
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

TEST_F(InstallNow, CancelBeforeTheFirstOutputStartsTheToolAnewTwoSecondsLater) {
    answerInstallWith({.output = {{"1%\r", 5000}}, .endsAtMs = 10000, .farewell = {}});
    ports.pump.after(1000, [&] { ui::click(frmStatus->cmdStop); });
    ports.pump.after(8500, [&] { ui::click(frmStatus->cmdStop); });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(commands().filter("inject").size(), 2);
    EXPECT_EQ(ports.power.shutDowns, 0);
}

TEST_F(InstallNow, AFailedInstallEndsLikeASuccessfulOne) {
    answerInstallWith({.output = {{"not enough free space.\r\n", 100}}, .endsAtMs = 200});
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons().last(), "Installation of LANTERN complete!");
    EXPECT_FALSE(program.shared().blnInstallRunning);
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10");
}

TEST_F(InstallNow, AnInstallThatBreaksOffLeavesTheWindowUsable) {
    ports.launcher.script = [](const QString&) -> std::optional<ChildScript> {
        throw std::runtime_error("out of memory");
    };
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(lastMessage().contains("out of memory"));
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_FALSE(program.shared().blnInstallRunning);
}

TEST_F(InstallNow, AToolThatSaysNothingIsToldAndTheWindowComesToItself) {
    answerInstallWith({});
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.dialogs.messageTexts().value(0).startsWith("An unknown error has occurred."));
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
    EXPECT_FALSE(frmStatus->shown());
}

TEST_F(InstallNow, AConsoleThatHasGoneIsNotRefreshed) {
    ports.pump.after(2000, [this] { ports.ping.reply = {.status = FakePing::kTimedOut}; });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(commands().last().startsWith("inject"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallNow, ThePowerActionsFollowTheStatusWindow) {
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

TEST_F(InstallNow, AStoreWithBothPowerActionsShutsDown) {
    store("TurnOffPC", "1");
    store("StandbyPC", "1");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.power.shutDowns, 1);
    EXPECT_EQ(ports.power.standBys, 0);
}

TEST_F(InstallNow, ALocalDiskNeverTurnsTheConsoleOff) {
    store("TurnOffPS2", "1");
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(commands().filter("poweroff"), QStringList());
    EXPECT_EQ(frmStatus->chkShutdownPS2.value, 0);
}

TEST_F(InstallNow, ClosingTheStatusWindowDuringTheRunMinimisesIt) {
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

TEST_F(InstallNow, ExitDuringTheRunEndsTheProgramWithNoLaterStep) {
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

TEST_F(InstallNow, ClosingTheMainWindowDuringTheRunEndsTheProgramToo) {
    ports.pump.after(2500, [this] {
        ui::click(frmMain.mnuMinimize);
        ui::close(frmMain);
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(commands().last().startsWith("inject"));
}

} // namespace tarnwell::test

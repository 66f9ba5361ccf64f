#include "logic/install_fixture.h"
#include "ui/version.h"

namespace tarnwell::test {

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
    expectPageReset(frmMain);
    EXPECT_FALSE(frmMain.mnuFlags[3].checked);
    EXPECT_TRUE(frmMain.mnuFlags[7].checked);
}

} // namespace tarnwell::test

#include "logic/install_fixture.h"
#include "logic/queue_test.h"
#include "queue/job_list.h"

namespace tarnwell::test {

namespace {

/// An image of 4095 MB is chosen on the install page.
struct JobList : QueueTest {
    JobList() {
        startProgram();
        chooseImage("/games/lantern.iso");
    }

    void chooseImage(const QString& path) {
        ports.dialogs.openFileAnswers.push_back(path);
        ui::click(frmMain.cmdISO);
    }
    const ui::ListView::Row& lastJob() const { return frmMain.lstJob.row(frmMain.lstJob.count() - 1); }
    void addTwoGames() {
        ui::click(frmMain.cmdAddGame);
        chooseImage("/games/copper.iso");
        ui::click(frmMain.cmdAddGame);
    }
    bool buttonsEnabled() const {
        EXPECT_EQ(frmMain.cmdStart.enabled, frmMain.cmdRemove.enabled);
        EXPECT_EQ(frmMain.cmdStart.enabled, frmMain.cmdClear.enabled);
        return frmMain.cmdStart.enabled;
    }
};

} // namespace

TEST_F(JobList, BeginsEmptyWithItsButtonsDisabled) {
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(buttonsEnabled());
}

TEST_F(JobList, AGameBecomesAPendingRowWithItsCommand) {
    EXPECT_TRUE(ui::click(frmMain.cmdAddGame));
    ASSERT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_EQ(lastJob().text, "Pending");
    EXPECT_EQ(lastJob().subItems, QStringList({"Install", "/games/lantern.iso", "192.168.0.10", "LANTERN",
                                               "SLUS_990.71", "DVD-ROM", ""}));
    EXPECT_EQ(lastJob().tag, "inject_dvd 192.168.0.10 LANTERN /games/lantern.iso SLUS_990.71");
    EXPECT_TRUE(buttonsEnabled());
    EXPECT_EQ(balloons(), QStringList("Job added to job queue"));
    EXPECT_EQ(frmMain.lstJob.selectedItem, -1);
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(jobCommands(), QStringList()) << "nothing runs before the queue does";
}

TEST_F(JobList, NoBalloonIfTheUserHasTurnedThemOff) {
    store("BalloonTips", "1");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(JobList, NoBalloonUnlessTheSettingIsExactlyZero) {
    store("BalloonTips", "0.5");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(JobList, EnterInTheGameNameAddsTheGame) {
    EXPECT_FALSE(ui::pressKey(frmMain.txtGameName, 13));
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(JobList, AGameIsAddedWithoutTheTool) {
    removeTool();
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(JobList, WhatIsMissingIsAskedFor) {
    ui::type(frmMain.txtGameName, "");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastMessage(), "Please enter a name for the game to be added.");

    frmMain.txtISO.text = QString();
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastMessage(), "Please select an ISO to install.");

    answerQueryWith("\tcd0:  4482 MB\r\n\tcd1:  4482 MB\r\n");
    ui::click(frmMain.optOptical);
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastMessage(), "Please select an optical drive with a PS2 game disc in it.");

    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(buttonsEnabled());
}

TEST_F(JobList, AGameThatDoesNotFitIsRefused) {
    frmMain.picDiskSpace.tag = QString("4200");
    frmMain.txtGameSize.tag = QString("4097");
    ui::click(frmMain.cmdAddGame);
    EXPECT_TRUE(lastMessage().endsWith("you need 4224MB and you only have 4200MB available."));
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
}

TEST_F(JobList, AGameThatJustFitsIsTaken) {
    frmMain.picDiskSpace.tag = QString("4096");
    frmMain.txtGameSize.tag = QString("4096.5");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(JobList, TwoGamesThatEachFitAreTakenEvenIfTheDiskHasRoomForOne) {
    frmMain.picDiskSpace.tag = QString("4096");
    addTwoGames();
    EXPECT_EQ(frmMain.lstJob.count(), 2);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(JobList, ASizeThatWasNeverReadIsToldAndChangesNothing) {
    frmMain.txtGameSize.tag = QString();
    ui::click(frmMain.cmdAddGame);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game is not known"));
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(buttonsEnabled());
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/lantern.iso");
}

TEST_F(JobList, ADriveThatTheLastQueryDoesNotKnowChangesNothing) {
    answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
    ui::click(frmMain.optOptical);
    frmMain.cmbOptical.tag = QString();
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
}

TEST_F(JobList, ANameWithABlankIsQuotedInTheCommandAndBareInTheList) {
    ui::type(frmMain.txtGameName, "Lantern and Quill");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().tag, "inject_dvd 192.168.0.10 \"Lantern and Quill\" /games/lantern.iso SLUS_990.71");
    EXPECT_EQ(lastJob().subItems[3], "Lantern and Quill");
}

TEST_F(JobList, FlagsWithoutAStartupFileKeepTheirPlaceByTwoQuotes) {
    ui::click(frmMain.mnuFlags[0]);
    ui::click(frmMain.mnuFlags[2]);
    ui::type(frmMain.txtGameStartup, "");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().tag, "inject_dvd 192.168.0.10 LANTERN /games/lantern.iso \"\" +1+3");
    EXPECT_EQ(lastJob().subItems[4], "");
    EXPECT_EQ(lastJob().subItems[6], "+1+3");
}

TEST_F(JobList, NeitherFlagsNorStartupLeaveNoBlankAtTheEnd) {
    ui::type(frmMain.txtGameStartup, "");
    frmMain.cmbType.listIndex = 0;
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().tag, "inject_cd 192.168.0.10 LANTERN /games/lantern.iso");
    EXPECT_EQ(lastJob().subItems[5], "CD-ROM");
}

TEST_F(JobList, AStartupFileWithABlankIsNotQuoted) {
    ui::type(frmMain.txtGameStartup, "SLUS 990.71");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().tag, "inject_dvd 192.168.0.10 LANTERN /games/lantern.iso SLUS 990.71");
}

TEST_F(JobList, ALocalDiskGoesByItsFirstFiveCharacters) {
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    frmMain.txtISO.text = QString("/games/lantern.iso");
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().subItems[2], "hdd1:");
}

TEST_F(JobList, ADiscIsQueuedByItsDriveAndThePageGoesBackToImages) {
    answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
    ui::click(frmMain.optOptical);
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(lastJob().subItems[1], "E:");
    EXPECT_TRUE(frmMain.optISO.value);
    EXPECT_FALSE(frmMain.cmbOptical.enabled);
    EXPECT_TRUE(frmMain.cmdISO.enabled);
    EXPECT_EQ(frmMain.cmbOptical.listIndex, -1);
}

TEST_F(JobList, ThePageIsResetButFlagEightAndTheSizeBehindItStay) {
    for (ui::MenuEntry& flag : frmMain.mnuFlags)
        ui::click(flag);
    frmMain.cmbType.listIndex = 0;
    frmMain.lblDVD9.visible = true;
    ui::click(frmMain.cmdAddGame);
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_FALSE(frmMain.mnuFlags[i].checked);
    EXPECT_TRUE(frmMain.mnuFlags[7].checked);
    expectPageReset(frmMain);
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
}

TEST_F(JobList, RemoveTakesTheSelectedRow) {
    addTwoGames();
    frmMain.lstJob.select(0);
    ui::click(frmMain.cmdRemove);
    ASSERT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_EQ(lastJob().subItems[1], "/games/copper.iso");
    EXPECT_TRUE(buttonsEnabled());
}

TEST_F(JobList, RemoveWithNothingSelectedDoesNothing) {
    addTwoGames();
    ui::click(frmMain.cmdRemove);
    EXPECT_EQ(frmMain.lstJob.count(), 2);
    frmMain.lstJob.select(1);
    frmMain.lstJob.setSelected(1, false);
    ui::click(frmMain.cmdRemove);
    EXPECT_EQ(frmMain.lstJob.count(), 2) << "the row has the focus but is not selected";
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(buttonsEnabled());
}

TEST_F(JobList, RemovingTheLastRowDisablesTheButtons) {
    ui::click(frmMain.cmdAddGame);
    frmMain.lstJob.select(0);
    ui::click(frmMain.cmdRemove);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(buttonsEnabled());
}

TEST_F(JobList, RemoveAndClearOfAnEmptyListDoNothing) {
    frmMain.cmdRemove.Click();
    frmMain.cmdClear.Click();
    EXPECT_FALSE(buttonsEnabled());
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(JobList, ClearTakesAllRowsWithoutAsking) {
    addTwoGames();
    ui::click(frmMain.cmdClear);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(buttonsEnabled());
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(JobList, ARightClickOffersTheCommandForChanges) {
    ui::click(frmMain.cmdAddGame);
    const QString old = lastJob().tag;
    const QStringList columns = lastJob().subItems;
    editCommand(0, "  inject_cd other  ");
    ASSERT_EQ(ports.dialogs.inputs.size(), 1u);
    EXPECT_EQ(ports.dialogs.inputs[0].prompt, "Make changes and click OK to save.");
    EXPECT_EQ(ports.dialogs.inputs[0].title, "Edit command");
    EXPECT_EQ(ports.dialogs.inputs[0].text, old);
    EXPECT_EQ(lastJob().tag, "  inject_cd other  ") << "as typed";
    EXPECT_EQ(lastJob().subItems, columns);
}

TEST_F(JobList, AnEditToNothingOrToBlanksOrACancelledOneKeepsTheCommand) {
    ui::click(frmMain.cmdAddGame);
    const QString old = lastJob().tag;
    editCommand(0, "");
    EXPECT_EQ(lastJob().tag, old);
    editCommand(0, "   ");
    EXPECT_EQ(lastJob().tag, old);
    ui::pressMouse(frmMain.lstJob, 2);
    EXPECT_EQ(ports.dialogs.inputs.size(), 3u);
    EXPECT_EQ(lastJob().tag, old);
}

TEST_F(JobList, OnlyTheRightButtonEdits) {
    ui::click(frmMain.cmdAddGame);
    frmMain.lstJob.select(0);
    ui::pressMouse(frmMain.lstJob, 1);
    EXPECT_TRUE(ports.dialogs.inputs.empty());
}

TEST_F(JobList, ARightClickOnAnEmptyListOrWithNothingSelectedDoesNothing) {
    ui::pressMouse(frmMain.lstJob, 2);
    ui::click(frmMain.cmdAddGame);
    ui::pressMouse(frmMain.lstJob, 2);
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(JobList, AfterARemovalNoRowIsChosen) {
    addTwoGames();
    frmMain.lstJob.select(0);
    ui::click(frmMain.cmdRemove);
    EXPECT_EQ(frmMain.lstJob.selectedRow(), -1);
    ui::pressMouse(frmMain.lstJob, 2);
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    ui::click(frmMain.cmdRemove);
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(JobList, TheRowThatIsMarkedCountsWhereverTheFocusIs) {
    addTwoGames();
    frmMain.lstJob.select(0);
    frmMain.lstJob.selectedItem = 1;
    ui::pressMouse(frmMain.lstJob, 2);
    ASSERT_EQ(ports.dialogs.inputs.size(), 1u);
    EXPECT_EQ(ports.dialogs.inputs[0].text, frmMain.lstJob.row(0).tag);
    ui::click(frmMain.cmdRemove);
    ASSERT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_EQ(lastJob().subItems[1], "/games/copper.iso");
}

TEST_F(JobList, RunningAndCompletedJobsCannotBeEditedOthersCan) {
    ui::click(frmMain.cmdAddGame);
    frmMain.lstJob.select(0);
    for (const char* result : {"Active", "Complete"}) {
        frmMain.lstJob.setText(0, result);
        ui::pressMouse(frmMain.lstJob, 2);
        EXPECT_EQ(lastMessage(),
                  "You cannot edit the command-line for jobs that are completed or currently active.");
    }
    EXPECT_EQ(ports.dialogs.messages.size(), 2u);
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    for (const char* result : {"Pending", "Aborted", "Error (Insufficient disk space)", "SPTI Error (5)"}) {
        frmMain.lstJob.setText(0, result);
        ui::pressMouse(frmMain.lstJob, 2);
    }
    EXPECT_EQ(ports.dialogs.inputs.size(), 4u);
}

} // namespace tarnwell::test

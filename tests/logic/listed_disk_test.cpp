#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

/// The games of the first disk are on view, the first of them is selected, and then the second disk is
/// chosen.
struct ListedDisk : GameListTest {
    ListedDisk() {
        useLocalDisk(0);
        list({"Lantern", "Copper Run"});
        select({0});
        ui::choose(frmMain.cmbHD, 1);
    }

    void chooseImage() {
        answerDiscInfoWith("DVD 4193280KB \"BEACON\" \"SLUS_990.71\"\r\n");
        ui::click(frmMain.optInstall);
        ports.dialogs.openFileAnswers.emplace_back("/games/beacon.iso");
        ui::click(frmMain.cmdISO);
        ui::type(frmMain.txtGameName, "Beacon");
        commandsBefore_ = commands().size();
    }
    void deleteNow() { ui::click(frmMain.mnuDeleteNow); }
    void copyToPc() {
        ports.dialogs.saveFileAnswers.emplace_back("/games/lantern.iso");
        ui::click(frmMain.cmdBackupPC);
    }
    void copyToConsole() {
        ports.dialogs.inputAnswers.emplace_back("10.0.0.2");
        ui::click(frmMain.cmdBackupPS2);
    }

    void expectRefused(const QString& listed = "hdd1:  [111.8 GB]",
                       const QString& chosen = "hdd2:  [37.3 GB]") {
        EXPECT_EQ(ports.dialogs.messageTexts(),
                  QStringList("The list shows the games of " + listed + ", but " + chosen +
                              " is chosen now. Nothing was done.\r\n\r\nChoose " + listed +
                              " again, or press \"Refresh HDD\" to list the games of the chosen disk."));
        EXPECT_EQ(commandsSince(), QStringList());
        expectNothingQueued();
        EXPECT_TRUE(ports.dialogs.questions.isEmpty());
        EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
        EXPECT_TRUE(ports.dialogs.inputs.empty());
    }
    /// Happens when the next row of a list has been read, while its bar is drawn.
    void whileTheBarIsDrawn(const std::function<void()>& event) {
        frmMain.picDiskSpace.drawing.changed.connect([this, event, done = false]() mutable {
            if (!std::exchange(done, true))
                ports.pump.queue(event);
        });
    }
    void listSecondDisk() {
        ui::choose(frmMain.cmbHD, 1);
        ui::click(frmMain.cmdAttach);
    }
};

} // namespace

TEST_F(ListedDisk, NoGameIsDeletedFromAnotherDisk) {
    deleteNow();
    expectRefused();
}

TEST_F(ListedDisk, NoDeleteIsQueuedForAnotherDisk) {
    ui::click(frmMain.mnuDeleteQueue);
    expectRefused();
}

TEST_F(ListedDisk, NoGameIsRenamedOnAnotherDisk) {
    EXPECT_FALSE(ui::editLabel(frmMain.lstHD, 0, "Beacon"));
    expectRefused();
    EXPECT_EQ(names(), QStringList({"Lantern", "Copper Run"}));
}

TEST_F(ListedDisk, NoGameIsInstalledOnADiskWhoseFreeSpaceIsNotKnown) {
    chooseImage();
    ui::click(frmMain.cmdInstall);
    expectRefused();
}

TEST_F(ListedDisk, NoInstallIsQueuedForADiskWhoseFreeSpaceIsNotKnown) {
    chooseImage();
    ui::click(frmMain.cmdAddGame);
    expectRefused();
    EXPECT_EQ(frmMain.txtGameName.text.get(), "Beacon") << "nothing that was entered is lost";
    listSecondDisk();
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd hdd2: Beacon /games/beacon.iso SLUS_990.71"));
}

TEST_F(ListedDisk, NoGameIsCopiedFromAnotherDiskToAFile) {
    copyToPc();
    expectRefused();
}

TEST_F(ListedDisk, NoGameIsCopiedFromAnotherDiskToAConsole) {
    copyToConsole();
    expectRefused();
}

TEST_F(ListedDisk, NoGameIsCopiedFromAnotherDiskToADisk) {
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[0]));
    expectRefused();
}

TEST_F(ListedDisk, TheListItselfMayBeExported) {
    ports.dialogs.saveFileAnswers.emplace_back(path("games.txt"));
    ui::click(frmMain.cmdSaveList);
    EXPECT_TRUE(QFile::exists(path("games.txt")));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ListedDisk, TheFirstDiskChosenAgainIsTheRightOne) {
    ui::choose(frmMain.cmbHD, 0);
    deleteNow();
    EXPECT_EQ(commandsSince(), QStringList({"delete hdd1: Lantern", "tarn_toc hdd1:"}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ListedDisk, ARefreshMakesTheChosenDiskTheRightOne) {
    list({"Fen"});
    select({0});
    copyToPc();
    copyToConsole();
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(commandsOfJobs(), QStringList({"extract hdd2: Fen /games/lantern.iso",
                                             "inject_dvd 10.0.0.2 Fen Fen@hdd2:", "delete hdd2: Fen"}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ListedDisk, ARefreshThatFindsNoPs2DiskLeavesTheGamesToTheFirst) {
    answerTocWith("hdd2: not a PlayStation 2 HDD.\r\n");
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(names(), QStringList({"Lantern", "Copper Run"}));
    ports.dialogs.messages.clear();
    deleteNow();
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("The list shows the games of hdd1:"));
    EXPECT_EQ(commandsSince().filter("delete"), QStringList());
}

TEST_F(ListedDisk, AnotherDiskThatIsChosenDuringARefreshIsNotTheOneThatWasRead) {
    ui::choose(frmMain.cmbHD, 0);
    ports.pump.after(10, [this] { ui::choose(frmMain.cmbHD, 1); });
    list({"Lantern"});
    EXPECT_EQ(frmMain.cmbHD.listIndex, 1);
    select({0});
    deleteNow();
    expectRefused();
}

TEST_F(ListedDisk, ThroughTheConsoleAndBackNoGamesAreLeftToBeMixedUp) {
    ui::click(frmMain.optLAN);
    ui::click(frmMain.optLocal);
    EXPECT_EQ(names(), QStringList());
    ui::choose(frmMain.cmbHD, 1);
    list({"Fen"});
    select({0});
    deleteNow();
    EXPECT_EQ(commandsSince().first(), "delete hdd2: Fen");
}

TEST_F(ListedDisk, AConsolesGamesNeverCountAsADisks) {
    ui::click(frmMain.optLAN);
    list({"Fen"});
    select({0});
    deleteNow();
    EXPECT_EQ(commandsSince().first(), "delete 192.168.0.10 Fen");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ListedDisk, OneListThatIsReadInTheMiddleOfAnotherLeavesEachGameToItsDisk) {
    ui::choose(frmMain.cmbHD, 0);
    // The bar of the old list is cleared, and the second disk is read before the first one's games appear.
    whileTheBarIsDrawn([this] { listSecondDisk(); });
    list({"Lantern"});
    EXPECT_EQ(commands().mid(commands().size() - 2), QStringList({"tarn_toc hdd1:", "tarn_toc hdd2:"}));
    EXPECT_EQ(frmMain.cmbHD.listIndex, 1);
    select({0});
    deleteNow();
    expectRefused();
}

} // namespace tarnwell::test

#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

/// A game of the console is selected, and is to go to a disk of the PC.
struct CopyMenu : GameListTest {
    CopyMenu() { listAgain(); }

    void listAgain() {
        list({"Lantern"});
        select({0});
    }
    QStringList offered() const {
        QStringList captions;
        for (const ui::MenuEntry& disk : frmMain.mnuHDD) {
            if (disk.visible)
                captions += disk.caption.get() + (disk.enabled ? "" : " (off)");
        }
        return captions;
    }
    void searchForDrives() {
        ui::click(frmMain.optInstall);
        ui::click(frmMain.optOptical);
        ports.dialogs.messages.clear();
        ui::click(frmMain.optBrowse);
    }
};

} // namespace

TEST_F(CopyMenu, EveryDiskIsATargetOfAConsolesGamesHoweverOftenTheyAreRead) {
    for (int refreshes = 1; refreshes <= 3; ++refreshes) {
        EXPECT_EQ(offered(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB]"})) << refreshes;
        listAgain();
    }
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[0]));
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[1]));
    EXPECT_EQ(commandsOfJobs(), QStringList({"inject_dvd hdd1: Lantern Lantern@192.168.0.10",
                                             "inject_dvd hdd2: Lantern Lantern@192.168.0.10"}));
}

TEST_F(CopyMenu, TheOnlyDiskIsATargetToo) {
    answerQueryWith("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n");
    for (int refreshes = 1; refreshes <= 3; ++refreshes) {
        listAgain();
        EXPECT_EQ(offered(), QStringList("hdd1:  [111.8 GB]")) << refreshes;
        EXPECT_TRUE(ui::click(frmMain.cmdBackupHDD));
    }
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[0]));
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd hdd1: Lantern Lantern@192.168.0.10"));
}

TEST_F(CopyMenu, TheDiskThatWasInUseIsATargetAgainOnTheConsole) {
    useLocalDisk(1);
    EXPECT_EQ(offered(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB] (off)"}));
    ui::click(frmMain.optLAN);
    listAgain();
    EXPECT_EQ(offered(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB]"}));
}

TEST_F(CopyMenu, ASearchForDrivesLeavesNoBlankEntriesAndTheDisksCanStillBeChosen) {
    searchForDrives();
    EXPECT_EQ(offered(), QStringList());
    EXPECT_TRUE(ui::click(frmMain.cmdBackupHDD));
    EXPECT_EQ(offered(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB]"}));
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[1]));
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd hdd2: Lantern Lantern@192.168.0.10"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(CopyMenu, ASearchForDrivesLeavesTheDiskInUseOff) {
    useLocalDisk(1);
    listAgain();
    searchForDrives();
    ui::click(frmMain.cmdBackupHDD);
    EXPECT_EQ(offered(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB] (off)"}));
}

TEST_F(CopyMenu, AnEntryThatLosesItsDiskWhileTheMenuIsOpenIsRefused) {
    ui::click(frmMain.cmdBackupHDD);
    frmMain.mnuHDD[1].caption = QString();
    ui::click(frmMain.mnuHDD[1]);
    EXPECT_EQ(
        ports.dialogs.messageTexts(),
        QStringList("This disk is no longer listed, and nothing was copied. Press \"Copy to HDD\" again "
                    "to see the disks."));
    expectNothingQueued();
}

} // namespace tarnwell::test

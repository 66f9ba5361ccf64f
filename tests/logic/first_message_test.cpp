#include "logic/game_list_fixture.h"

/// Where several things are missing at once, the user is told of one of them: what the work needs first.
namespace tarnwell::test {

namespace {

const QString kToolMissing =
    "tarnwell.exe was not found. Place it in the same directory as this program and try again.";
const QString kNoIso = "Please select an ISO to install.";
const QString kNoDrive = "Please select an optical drive with a PS2 game disc in it.";
const QString kNoRoom =
    "You do not have enough available space on your hard-drive to install this game.\r\n\r\n"
    "To install this game you need 4224MB and you only have 4200MB available.";
const QString kNoAddress = "Please enter the IP address of your PlayStation2.";
const QString kSameConsole = "The address you entered matches the source PS2 address. Try again.";

QString consoleNotFound(const QString& address) {
    return "A PS2 console could not be found at IP address: " + address +
           "\r\n\r\nVerify the following:\r\n\r\n"
           "1. The PS2 console is currently running tarnd_svr.elf and it is fully initialized.\r\n"
           "2. The IP address you entered matches the IP address configured in mc0:SYS-CONF/IPCONFIG.DAT\r\n";
}

/// The games of the console are on view.
struct FirstMessage : GameListTest {
    FirstMessage() {
        list({"Lantern", "Copper Run", "Fen"});
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
    }

    template <class Control>
    QStringList answerTo(Control& clicked) {
        ports.dialogs.messages.clear();
        EXPECT_TRUE(ui::click(clicked));
        return ports.dialogs.messageTexts();
    }
    void leaveNoRoom() {
        frmMain.picDiskSpace.tag = QString("4200");
        frmMain.txtGameSize.tag = QString("4097");
    }
    void leaveRoom() { frmMain.picDiskSpace.tag = QString("4224"); }
    void chooseNoDrive() {
        answerQueryWith("\tcd0:  700 MB\r\n\tcd1:  4482 MB\r\n");
        ui::click(frmMain.optInstall);
        ui::click(frmMain.optOptical);
    }
    void chooseDrive() {
        answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
        ui::click(frmMain.optInstall);
        ui::click(frmMain.optOptical);
    }
    /// Its disc has been read, but it is not in the map of drives any more.
    void chooseLostDrive() {
        chooseDrive();
        frmMain.cmbOptical.tag = QString();
    }
    void noConsole() { ports.ping.reply = {.status = FakePing::kTimedOut}; }
    /// Two games are selected; the focus is on a third one that is not.
    void selectTwoAndLeave() {
        select({0, 1, 2});
        frmMain.lstHD.setSelected(2, false);
    }
    QStringList answerToCopy(const QString& address) {
        ports.dialogs.inputAnswers.push_back(address);
        return answerTo(frmMain.cmdBackupPS2);
    }
};

} // namespace

TEST_F(FirstMessage, AnInstallNeedsTheToolThenAnImageThenANameThenRoom) {
    ui::click(frmMain.optInstall);
    removeTool();
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList(kToolMissing));
    putTool();
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList(kNoIso));
    frmMain.txtISO.text = QString("/games/lantern.iso");
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList("Please enter a name for the game to install."));
    ui::type(frmMain.txtGameName, "Lantern");
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList(kNoRoom));
    leaveRoom();
    EXPECT_EQ(answerTo(frmMain.cmdInstall).filter("space on your hard-drive"), QStringList());
    EXPECT_FALSE(commandsSince().filter("inject").isEmpty());
}

TEST_F(FirstMessage, AnInstallFromADiscNeedsADriveBeforeANameAndRoom) {
    chooseNoDrive();
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList(kNoDrive));
}

TEST_F(FirstMessage, AnInstallFromALostDriveNeedsANameThenRoomThenTheDrive) {
    chooseLostDrive();
    ui::type(frmMain.txtGameName, "");
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList("Please enter a name for the game to install."));
    ui::type(frmMain.txtGameName, "Lantern");
    EXPECT_EQ(answerTo(frmMain.cmdInstall), QStringList(kNoRoom));
    leaveRoom();
    EXPECT_EQ(answerTo(frmMain.cmdInstall).size(), 1);
    EXPECT_NE(lastMessage(), kNoRoom);
    EXPECT_EQ(balloons(), QStringList()) << "nothing was begun";
}

TEST_F(FirstMessage, AJobNeedsAnImageThenANameThenRoom) {
    ui::click(frmMain.optInstall);
    removeTool();
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList(kNoIso));
    frmMain.txtISO.text = QString("/games/lantern.iso");
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList("Please enter a name for the game to be added."));
    ui::type(frmMain.txtGameName, "Lantern");
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList(kNoRoom));
    leaveRoom();
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList());
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(FirstMessage, AJobFromADiscNeedsADriveBeforeANameAndRoom) {
    chooseNoDrive();
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList(kNoDrive));
}

TEST_F(FirstMessage, AJobFromALostDriveNeedsANameThenRoomThenTheDrive) {
    chooseLostDrive();
    ui::type(frmMain.txtGameName, "");
    leaveNoRoom();
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList("Please enter a name for the game to be added."));
    ui::type(frmMain.txtGameName, "Lantern");
    EXPECT_EQ(answerTo(frmMain.cmdAddGame), QStringList(kNoRoom));
    leaveRoom();
    EXPECT_EQ(answerTo(frmMain.cmdAddGame).size(), 1);
    EXPECT_NE(lastMessage(), kNoRoom);
    expectNothingQueued();
}

TEST_F(FirstMessage, AnImageOfADiscNeedsTheToolThenAName) {
    chooseDrive();
    ui::type(frmMain.txtGameName, "");
    removeTool();
    EXPECT_EQ(answerTo(frmMain.cmdMakeISO), QStringList(kToolMissing));
    putTool();
    EXPECT_EQ(answerTo(frmMain.cmdMakeISO), QStringList("Please enter a name for the game."));
}

TEST_F(FirstMessage, APickOfAnImageNeedsTheToolBeforeTheFile) {
    ui::click(frmMain.optInstall);
    removeTool();
    EXPECT_EQ(answerTo(frmMain.cmdISO), QStringList(kToolMissing));
    EXPECT_TRUE(ports.dialogs.openFileRequests.empty());
}

TEST_F(FirstMessage, ADriveThatIsChosenNeedsTheTool) {
    chooseNoDrive();
    removeTool();
    ui::choose(frmMain.cmbOptical, 0);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kToolMissing));
    EXPECT_EQ(commands().filter("cdvd_info2"), QStringList());
}

TEST_F(FirstMessage, NoDriveAtAllNeedsNoTool) {
    chooseDrive();
    removeTool();
    EXPECT_EQ(answerTo(frmMain.optISO), QStringList());
}

TEST_F(FirstMessage, WithoutAGameUnderTheFocusACopyEndsSilentlyHoweverManyAreSelected) {
    selectTwoAndLeave();
    ports.dialogs.saveFileAnswers.push_back("/games/g.iso");
    EXPECT_EQ(answerTo(frmMain.cmdBackupPC), QStringList());
    EXPECT_EQ(answerToCopy("10.0.0.2"), QStringList());
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    expectNothingQueued();
}

TEST_F(FirstMessage, TheMenuOfDisksCountsTheGamesWhereverTheFocusIs) {
    selectTwoAndLeave();
    EXPECT_EQ(answerTo(frmMain.cmdBackupHDD), QStringList("This command does not support multiple games."));
}

TEST_F(FirstMessage, ACopyOntoTheSameConsoleWarnsOfThatAndThenThatItDoesNotAnswer) {
    select({0});
    noConsole();
    EXPECT_EQ(answerToCopy("192.168.0.10"), QStringList({kSameConsole, consoleNotFound("192.168.0.10")}));
    expectNothingQueued();
}

TEST_F(FirstMessage, ARefreshNeedsTheToolThenAnAddressThenAnAnswer) {
    ui::type(frmMain.txtIP, "");
    removeTool();
    noConsole();
    EXPECT_EQ(answerTo(frmMain.cmdAttach), QStringList(kToolMissing));
    putTool();
    EXPECT_EQ(answerTo(frmMain.cmdAttach), QStringList(kNoAddress));
    ui::type(frmMain.txtIP, "10.0.0.2");
    EXPECT_EQ(answerTo(frmMain.cmdAttach), QStringList(consoleNotFound("10.0.0.2")));
}

TEST_F(FirstMessage, ARefreshOfNoDiskNeedsTheToolFirst) {
    useLocalDisk();
    frmMain.cmbHD.listIndex = -1;
    removeTool();
    EXPECT_EQ(answerTo(frmMain.cmdAttach), QStringList(kToolMissing));
}

TEST_F(FirstMessage, ARefreshThatIsRefusedLeavesTheInstallButtonsOn) {
    removeTool();
    EXPECT_EQ(answerTo(frmMain.cmdAttach), QStringList(kToolMissing));
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_TRUE(frmMain.cmdAddGame.enabled);
}

TEST_F(FirstMessage, ShuttingDownNeedsTheToolThenAnAddressThenAnAnswer) {
    ui::type(frmMain.txtIP, "");
    removeTool();
    noConsole();
    EXPECT_EQ(answerTo(frmMain.cmdShutdownPS2), QStringList(kToolMissing));
    putTool();
    EXPECT_EQ(answerTo(frmMain.cmdShutdownPS2), QStringList(kNoAddress));
    ui::type(frmMain.txtIP, "10.0.0.2");
    EXPECT_EQ(answerTo(frmMain.cmdShutdownPS2), QStringList(consoleNotFound("10.0.0.2")));
    EXPECT_EQ(commands().filter("poweroff"), QStringList());
}

} // namespace tarnwell::test

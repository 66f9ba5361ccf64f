#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

constexpr char kOneOnly[] = "This command does not support multiple games.";
constexpr quint32 kTarget = 0x0A000002; // 10.0.0.2

struct CopyGames : GameListTest {
    CopyGames() {
        listGames({{.name = "Lantern"}, {.name = "Copper Run", .type = "CD"}});
        frmMain.menuWanted.connect([this](ui::PopupMenu& menu, const ui::Control& control) {
            menus_ += menu.name + " below " + control.name;
        });
    }

    void copyToPc(const QString& file) {
        ports.dialogs.saveFileAnswers.push_back(file);
        ui::click(frmMain.cmdBackupPC);
    }
    void copyToConsole(const QString& address) {
        ports.dialogs.inputAnswers.push_back(address);
        ui::click(frmMain.cmdBackupPS2);
    }

    QStringList menus_;
};

} // namespace

TEST_F(CopyGames, AGameOfTheConsoleGoesToAFile) {
    select({0});
    copyToPc("/games/lantern.iso");
    expectQueued({"Backup to PC", "192.168.0.10", "/games/lantern.iso", "Lantern"},
                 "extract 192.168.0.10 Lantern /games/lantern.iso");
    EXPECT_EQ(commandsSince(), QStringList()) << "nothing runs before the queue does";
}

TEST_F(CopyGames, AFileOutsideTheCodePageIsKnownByTheShortNameOfItsFolderOrNotTaken) {
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2/");
    ports.folders.namesInCodePage = {{folder, ""}};
    select({0});
    copyToPc(folder + "lantern.iso");
    EXPECT_TRUE(lastMessage().startsWith(folder + "lantern.iso cannot be used: "));
    expectNothingQueued();
    ports.folders.namesInCodePage = {{folder, "/1A2B~1/"}};
    copyToPc(folder + "lantern.iso");
    expectQueued({"Backup to PC", "192.168.0.10", "/1A2B~1/lantern.iso", "Lantern"},
                 "extract 192.168.0.10 Lantern /1A2B~1/lantern.iso");
}

TEST_F(CopyGames, AGameGoesToAnotherConsole) {
    select({0});
    copyToConsole("10.0.0.2");
    expectQueued({"Copy to PS2", "192.168.0.10", "10.0.0.2", "Lantern"},
                 "inject_dvd 10.0.0.2 Lantern Lantern@192.168.0.10");
    EXPECT_EQ(ports.ping.echoes.back().address, kTarget);
    ASSERT_EQ(ports.dialogs.inputs.size(), 1u);
    EXPECT_EQ(ports.dialogs.inputs[0].prompt,
              "Please enter the IP address of the PS2 console to copy the selected game to.");
    EXPECT_EQ(ports.dialogs.inputs[0].title, "Destination IP Address");
    EXPECT_EQ(ports.dialogs.inputs[0].text, "");
}

TEST_F(CopyGames, AGameGoesToADiskOfThePc) {
    select({0});
    ui::click(frmMain.mnuHDD[1]);
    expectQueued({"Copy to HDD", "192.168.0.10", "hdd2:", "Lantern"},
                 "inject_dvd hdd2: Lantern Lantern@192.168.0.10");
}

TEST_F(CopyGames, ALocalDiskGoesByItsShortNameToAFileAndByItsLongNameElsewhere) {
    answerQueryWith("\thdd10:  114473MB, formatted Playstation 2 HDD\r\n" + kTwoDisks);
    useLocalDisk();
    list({"Lantern"});
    select({0});
    copyToPc("/games/lantern.iso");
    copyToConsole("10.0.0.2");
    ui::click(frmMain.mnuHDD[1]);
    EXPECT_EQ(commandsOfJobs(), QStringList({"extract hdd10 Lantern /games/lantern.iso",
                                             "inject_dvd 10.0.0.2 Lantern Lantern@hdd10:",
                                             "inject_dvd hdd1: Lantern Lantern@hdd10:"}));
    EXPECT_EQ(frmMain.lstJob.row(0).subItems[1], "hdd10");
    EXPECT_EQ(frmMain.lstJob.row(1).subItems[1], "hdd10:");
    EXPECT_EQ(frmMain.lstJob.row(2).subItems[1], "hdd10:");
}

TEST_F(CopyGames, ATargetWithALongNameLosesItsColon) {
    answerQueryWith("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                    "\thdd10:  114473MB, formatted Playstation 2 HDD\r\n");
    list({"Lantern"});
    select({0});
    ui::click(frmMain.mnuHDD[1]);
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd hdd10 Lantern Lantern@192.168.0.10"));
}

TEST_F(CopyGames, ANameWithABlankIsQuotedWhereverItStands) {
    select({1});
    copyToPc("/my games/copper.iso");
    copyToConsole("10.0.0.2");
    EXPECT_EQ(commandsOfJobs(),
              QStringList({"extract 192.168.0.10 \"Copper Run\" \"/my games/copper.iso\"",
                           "inject_cd 10.0.0.2 \"Copper Run\" \"Copper Run@192.168.0.10\""}));
    EXPECT_EQ(frmMain.lstJob.row(0).subItems[3], "Copper Run");
}

TEST_F(CopyGames, ALongNameWithQuotesInAnyAlphabetArrivesAsItIs) {
    list({kLongName});
    select({0});
    copyToPc("/g.iso");
    EXPECT_EQ(commandsOfJobs(), QStringList("extract 192.168.0.10 \"" + kLongName + "\" /g.iso"));
    EXPECT_EQ(ports.dialogs.saveFileRequests.at(0).fileName, QString(kLongName).replace('"', '-') + ".iso");
}

TEST_F(CopyGames, TheDialogProposesTheNameOfTheGame) {
    store("DefaultISO", "/my images");
    select({1});
    copyToPc("/g.iso");
    const SaveFileRequest& request = ports.dialogs.saveFileRequests.at(0);
    EXPECT_EQ(request.title, "Save Copy of Game As");
    EXPECT_EQ(request.fileName, "Copper Run.iso");
    EXPECT_EQ(request.folder, "/my images");
    EXPECT_EQ(request.extension, "iso");
    EXPECT_EQ(request.filter, "ISO Files (*.iso)|*.iso|All Files (*.*)|*.*|");
    EXPECT_FALSE(request.askBeforeOverwriting);
}

TEST_F(CopyGames, OnlyThePartBehindTheLastBackslashIsProposed) {
    list({"Dusk\\Till\\Dawns"});
    select({0});
    copyToPc("/g.iso");
    EXPECT_EQ(ports.dialogs.saveFileRequests.at(0).fileName, "Dawns.iso");
    EXPECT_EQ(commandsOfJobs(), QStringList("extract 192.168.0.10 Dusk\\Till\\Dawns /g.iso"));
}

TEST_F(CopyGames, AFileThatExistsIsLeftAlone) {
    writeFile("old.iso", "an old image");
    select({0});
    copyToPc(path("old.iso"));
    EXPECT_TRUE(QFile::exists(path("old.iso")));
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(CopyGames, AFileThatCannotBeWrittenIsQueuedAllTheSame) {
    select({0});
    copyToPc(path("tarnwell.exe") + "/g.iso");
    EXPECT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(CopyGames, CancelledDialogsChangeNothing) {
    select({0});
    ui::click(frmMain.cmdBackupPC);
    copyToPc("");
    ui::click(frmMain.cmdBackupPS2);
    copyToConsole("");
    copyToConsole("   ");
    expectNothingQueued();
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(ports.ping.echoes.size(), 1u) << "only the list was asked for";
}

TEST_F(CopyGames, OneGameAtATime) {
    select({0, 1});
    ui::click(frmMain.cmdBackupPC);
    ui::click(frmMain.cmdBackupPS2);
    ui::click(frmMain.cmdBackupHDD);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList({kOneOnly, kOneOnly, kOneOnly}));
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    EXPECT_TRUE(menus_.empty());
    expectNothingQueued();
}

TEST_F(CopyGames, TheMenuOfDisksCountsNoFurther) {
    select({0, 1});
    ui::click(frmMain.mnuHDD[1]);
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_cd hdd2: \"Copper Run\" \"Copper Run@192.168.0.10\""));
}

TEST_F(CopyGames, NothingSelectedOrListedEndsWithoutAWord) {
    const auto tryAll = [this] {
        copyToPc("/g.iso");
        copyToConsole("10.0.0.2");
        EXPECT_TRUE(ui::click(frmMain.mnuHDD[1]));
    };
    tryAll();
    select({0});
    frmMain.lstHD.setSelected(0, false);
    tryAll();
    frmMain.lstHD.clear();
    tryAll();
    expectNothingQueued();
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    EXPECT_TRUE(ports.dialogs.inputs.empty());
}

TEST_F(CopyGames, AGameWithoutTheFocusOpensTheMenuButIsNotCopied) {
    select({0});
    frmMain.lstHD.setSelected(0, false);
    frmMain.lstHD.setSelected(1, true);
    ui::click(frmMain.cmdBackupHDD);
    EXPECT_EQ(menus_.size(), 1);
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[1]));
    expectNothingQueued();
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(CopyGames, TheMenuOpensBelowItsButton) {
    ui::click(frmMain.cmdBackupHDD);
    EXPECT_EQ(menus_, QStringList("mnuBackup below cmdBackupHDD"));
    expectNothingQueued();
}

TEST_F(CopyGames, TheDiskInUseIsNoTarget) {
    useLocalDisk(1);
    list({"Lantern"});
    select({0});
    EXPECT_FALSE(ui::click(frmMain.mnuHDD[1]));
    EXPECT_FALSE(ui::click(frmMain.mnuHDD[2])) << "there is no third disk";
    EXPECT_TRUE(ui::click(frmMain.mnuHDD[0]));
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd hdd1: Lantern Lantern@hdd2:"));
}

TEST_F(CopyGames, AnyTypeButDvdIsACd) {
    frmMain.lstHD.append({.text = "Odd", .subItems = {"", "", "dvd", ""}});
    select({2});
    copyToConsole("10.0.0.2");
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_cd 10.0.0.2 Odd Odd@192.168.0.10"));
}

TEST_F(CopyGames, TheSourceAsItsOwnTargetIsWarnedOfAndQueued) {
    select({0});
    copyToConsole("192.168.0.10");
    EXPECT_EQ(ports.dialogs.messageTexts(),
              QStringList("The address you entered matches the source PS2 address. Try again."));
    EXPECT_EQ(ports.dialogs.inputs.size(), 1u) << "no second box, whatever the words";
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd 192.168.0.10 Lantern Lantern@192.168.0.10"));
}

TEST_F(CopyGames, BlanksBehindTheAddressHideNoSourceAndReachTheTool) {
    select({0});
    copyToConsole("192.168.0.10 ");
    EXPECT_EQ(ports.dialogs.messages.size(), 1u) << "of the source as its own target";
    EXPECT_EQ(frmMain.lstJob.row(0).subItems[2], "192.168.0.10 ");
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd \"192.168.0.10 \" Lantern Lantern@192.168.0.10"));
}

TEST_F(CopyGames, ABlankInFrontOfTheAddressIsLookedForToo) {
    select({0});
    copyToConsole(" 10.0.0.2");
    EXPECT_TRUE(lastMessage().startsWith("A PS2 console could not be found at IP address:  10.0.0.2\r\n"));
    expectNothingQueued();
}

TEST_F(CopyGames, TheAddressOfTheSourceIsComparedAsItWasTyped) {
    ui::type(frmMain.txtIP, "192.168.0.10 ");
    list({"Lantern"});
    select({0});
    copyToConsole("192.168.0.10");
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(commandsOfJobs(), QStringList("inject_dvd 192.168.0.10 Lantern \"Lantern@192.168.0.10 \""));
}

TEST_F(CopyGames, AConsoleThatDoesNotAnswerIsNoTarget) {
    ports.ping.replies[kTarget] = {.status = FakePing::kTimedOut};
    select({0});
    copyToConsole("10.0.0.2");
    EXPECT_TRUE(lastMessage().startsWith(
        "A PS2 console could not be found at IP address: 10.0.0.2\r\n\r\nVerify the following:\r\n\r\n1."));
    expectNothingQueued();
}

TEST_F(CopyGames, WhatIsNoAddressIsNoTarget) {
    select({0});
    copyToConsole("the other console");
    EXPECT_TRUE(lastMessage().contains("IP address: the other console\r\n"));
    expectNothingQueued();
}

TEST_F(CopyGames, NoToolIsNeededBeforeTheQueueRuns) {
    removeTool();
    select({0});
    copyToPc("/g.iso");
    EXPECT_EQ(frmMain.lstJob.count(), 1);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

} // namespace tarnwell::test

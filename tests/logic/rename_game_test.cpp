#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

constexpr char kSameName[] =
    "This command does not work for changing the case of character(s) in a game name. The name must be "
    "*different* in some way for it to work.";

struct RenameGame : GameListTest {
    RenameGame() { list({"ABC", "Copper Run"}); }

    void expectRefused(int row, const QString& newName) {
        const QString oldName = frmMain.lstHD.row(row).text;
        EXPECT_FALSE(ui::editLabel(frmMain.lstHD, row, newName));
        EXPECT_EQ(frmMain.lstHD.row(row).text, oldName);
        EXPECT_EQ(commandsSince(), QStringList());
    }
};

} // namespace

TEST_F(RenameGame, SendsBothNamesAndReadsTheListAnew) {
    answerTocWith("type\r\nDVD 4193280KB                SLUS_990.71   Copper 5 (disk's own words)\r\n");
    ui::editLabel(frmMain.lstHD, 1, "Copper 5");
    EXPECT_EQ(commandsSince(), QStringList({"modify 192.168.0.10 \"Copper Run\" \"Copper 5\"", "query",
                                            "tarn_toc 192.168.0.10"}));
    EXPECT_EQ(names(), QStringList("Copper 5 (disk's own words)"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(RenameGame, WhatTheDiskSaysStandsAlsoIfTheRenameFailed) {
    ui::editLabel(frmMain.lstHD, 0, "DEF");
    EXPECT_EQ(names(), QStringList({"ABC", "Copper Run"}));
}

TEST_F(RenameGame, ThePointerIsTheHourglassMeanwhile) {
    ports.launcher.on("tarnwell.exe modify", {.endsAtMs = 2000});
    ui::MousePointer meanwhile = ui::MousePointer::Default;
    ports.pump.after(1000, [&] { meanwhile = frmMain.mousePointer; });
    ui::editLabel(frmMain.lstHD, 0, "DEF");
    EXPECT_EQ(meanwhile, ui::MousePointer::Hourglass);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(RenameGame, AnEmptyNameIsRefusedWithoutAWord) {
    expectRefused(0, "");
    expectRefused(0, "   ");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(RenameGame, AChangeOfCaseIsRefusedAndExplained) {
    expectRefused(0, "abc");
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kSameName));
}

TEST_F(RenameGame, AnUnchangedNameIsRefusedAndExplained) {
    expectRefused(1, "Copper Run");
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kSameName));
}

TEST_F(RenameGame, ABlankBehindTheNameIsADifference) {
    ui::editLabel(frmMain.lstHD, 0, "ABC ");
    EXPECT_EQ(commandsSince().first(), "modify 192.168.0.10 ABC \"ABC \"");
}

TEST_F(RenameGame, DuringAJobNothingIsRenamedNorSaid) {
    program.shared().blnQueueRunning = true;
    expectRefused(0, "DEF");
    program.shared().blnQueueRunning = false;
    program.shared().blnInstallRunning = true;
    expectRefused(0, "abc");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(RenameGame, ALocalDiskIsSentTheAddressTooAndReadAnewByItsName) {
    useLocalDisk();
    list({"ABC"});
    ui::editLabel(frmMain.lstHD, 0, "DEF");
    EXPECT_EQ(commandsSince(), QStringList({"modify 192.168.0.10 ABC DEF", "tarn_toc hdd1:"}));
}

TEST_F(RenameGame, TheGameIsTheEditedOneWhateverIsSelected) {
    select({0});
    ui::editLabel(frmMain.lstHD, 1, "Copper 5");
    EXPECT_EQ(commandsSince().first(), "modify 192.168.0.10 \"Copper Run\" \"Copper 5\"");
}

TEST_F(RenameGame, LongNamesWithQuotesInAnyAlphabetArriveAsTheyAre) {
    ui::editLabel(frmMain.lstHD, 0, kLongName);
    EXPECT_EQ(commandsSince().first(), "modify 192.168.0.10 ABC \"" + kLongName + '"');
}

TEST_F(RenameGame, AConsoleThatDoesNotAnswerLeavesTheListWithTheNewLabel) {
    ports.ping.reply = {.status = FakePing::kTimedOut};
    ui::editLabel(frmMain.lstHD, 0, "DEF");
    EXPECT_TRUE(lastMessage().startsWith("A PS2 console could not be found"));
    EXPECT_EQ(names(), QStringList({"DEF", "Copper Run"}));
}

TEST_F(RenameGame, AnAddressTypedMeanwhileDoesNoHarm) {
    ports.launcher.on("tarnwell.exe modify", {.endsAtMs = 2000});
    ports.pump.after(1000, [this] { ui::type(frmMain.txtIP, "10.0.0.2"); });
    ui::editLabel(frmMain.lstHD, 1, "DEF");
    EXPECT_EQ(commandsSince().first(), "modify 192.168.0.10 \"Copper Run\" DEF");
    EXPECT_EQ(commandsSince().last(), "tarn_toc 10.0.0.2");
}

} // namespace tarnwell::test

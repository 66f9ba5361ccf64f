#include "logic/disk_tools_fixture.h"
#include "settings/disk_tools.h"

#include <gmock/gmock.h>

namespace tarnwell::test {
namespace {

using testing::HasSubstr;

TEST_F(DiskToolsTest, NothingCanBeDoneBeforeTheDevicesAreListed) {
    EXPECT_EQ(frmSettings.cmbHD.listCount(), 0);
    expectEnabled(false, false);
    EXPECT_FALSE(ui::click(frmSettings.cmdFormat));
}

TEST_F(DiskToolsTest, RefreshListsEveryDiskAndTheConsoleLast) {
    list();
    EXPECT_EQ(frmSettings.cmbHD.items(), (QStringList{kFormatted, kUnformatted, kAddress}));
    EXPECT_EQ(frmSettings.cmbHD.listIndex, 0);
    EXPECT_EQ(commands(), QStringList{"query"});
    expectEnabled(true, true);
}

TEST_F(DiskToolsTest, RefreshLeavesTheListsOfTheMainWindowAlone) {
    list();
    EXPECT_EQ(frmMain.cmbHD.listCount(), 0);
    EXPECT_EQ(frmMain.mnuHDD[0].caption.get(), "");
}

TEST_F(DiskToolsTest, RefreshStartsTheListAnew) {
    list();
    list();
    EXPECT_EQ(frmSettings.cmbHD.listCount(), 3);
}

TEST_F(DiskToolsTest, WithoutDisksAndAddressEverythingIsOff) {
    list();
    frmMain.txtIP.text = "";
    list("");
    EXPECT_EQ(frmSettings.cmbHD.listCount(), 0);
    expectEnabled(false, false);
}

TEST_F(DiskToolsTest, RefreshAloneMakesTheFormatUsableAndTheChoiceTheTable) {
    list("no disks\r\n");
    EXPECT_EQ(frmSettings.cmbHD.items(), QStringList{kAddress});
    expectEnabled(true, false);
    list("\thdd2:  38146MB, unknown format\r\n");
    expectEnabled(true, false);
}

TEST_F(DiskToolsTest, WithoutTheToolNothingIsAsked) {
    removeTool();
    ui::click(frmSettings.cmdRefresh);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("tarnwell.exe was not found."));
    EXPECT_TRUE(commands().isEmpty());
}

TEST_F(DiskToolsTest, FormatWithoutTheToolAsksNothing) {
    list();
    removeTool();
    ui::click(frmSettings.cmdFormat);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("tarnwell.exe was not found."));
    EXPECT_TRUE(questions().isEmpty());
}

TEST_F(DiskToolsTest, ADiskOfUnknownFormatCanOnlyBeFormatted) {
    list();
    ui::choose(frmSettings.cmbHD, 1);
    expectEnabled(true, false);
    ui::choose(frmSettings.cmbHD, 0);
    expectEnabled(true, true);
}

TEST_F(DiskToolsTest, TheConsolesTableCanBeSaved) {
    list();
    ui::choose(frmSettings.cmbHD, 1);
    ui::choose(frmSettings.cmbHD, 2);
    expectEnabled(true, true);
}

TEST_F(DiskToolsTest, FormattingAsksOnceAndNamesTheDisk) {
    list();
    ports.dialogs.questionAnswer = false;
    ui::click(frmSettings.cmdFormat);
    const auto& asked = ports.dialogs.lastQuestion;
    EXPECT_EQ(asked.text, "ARE YOU SURE YOU WANT TO FORMAT THIS HARD DRIVE?\r\n\r\n" + kFormatted +
                              "\r\n\r\nALL EXISTING DATA ON THIS DRIVE WILL BE LOST");
    EXPECT_EQ(asked.title, "ARE YOU 100% SURE?");
    EXPECT_EQ(asked.icon, MessageIcon::Stop);
    EXPECT_EQ(questions().size(), 1);
    EXPECT_EQ(commands(), QStringList{"query"}) << "No means that nothing is sent";
    EXPECT_TRUE(ports.tray.balloons.empty());
}

TEST_F(DiskToolsTest, AFormattedDiskShowsItsNewState) {
    list();
    ui::choose(frmSettings.cmbHD, 1);
    answerQueryWith("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                    "\thdd2:  38146MB, formatted Playstation 2 HDD\r\n");
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(commands(), (QStringList{"query", "initialize hdd2:", "query"}));
    EXPECT_EQ(frmSettings.cmbHD.text(), "hdd2:  [37.3 GB] - Playstation2 Formatted");
    expectEnabled(true, true);
    ASSERT_EQ(ports.tray.balloons.size(), 1U);
    EXPECT_EQ(ports.tray.balloons[0].text, kFormatted + " has been formatted for HDLoader")
        << "the entry that the new list has chosen";
}

TEST_F(DiskToolsTest, NoBalloonIfTheyAreTurnedOff) {
    list();
    store("BalloonTips", "1");
    ui::click(frmSettings.cmdFormat);
    EXPECT_TRUE(ports.tray.balloons.empty());
}

TEST_F(DiskToolsTest, OnlyFiveCharactersOfTheEntryReachTheFormat) {
    list("\thdd10:  1024MB, unknown format\r\n");
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(commands()[1], "initialize hdd10");
    ui::choose(frmSettings.cmbHD, 1);
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(commands()[3], "initialize 192.1");
}

TEST_F(DiskToolsTest, ADiskThatIsGoneAfterTheFormatLeavesNoChoiceBehind) {
    list();
    frmMain.txtIP.text = "";
    ui::choose(frmSettings.cmbHD, 1);
    answerQueryWith("no disks\r\n");
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(frmSettings.cmbHD.listIndex, -1);
    expectEnabled(false, false);
}

TEST_F(DiskToolsTest, TheLastEntryThatIsGoneAfterTheFormatGivesWayToTheFirst) {
    list();
    ui::choose(frmSettings.cmbHD, 2);
    frmMain.txtIP.text = "";
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(frmSettings.cmbHD.items(), (QStringList{kFormatted, kUnformatted}));
    EXPECT_EQ(frmSettings.cmbHD.listIndex, 0);
}

TEST_F(DiskToolsTest, TheListIsReadAnewBeforeAnythingElseCanBeStarted) {
    list();
    bool looked = false;
    during("query", [&] {
        looked = true;
        EXPECT_FALSE(frmMain.cmdExit.enabled);
        EXPECT_FALSE(frmSettings.cmdRefresh.usable());
        EXPECT_EQ(frmSettings.mousePointer, ui::MousePointer::Hourglass);
    });
    ui::click(frmSettings.cmdFormat);
    EXPECT_TRUE(looked);
    EXPECT_TRUE(frmMain.cmdExit.enabled);
}

TEST_F(DiskToolsTest, NothingElseCanBeStartedDuringAFormat) {
    list();
    bool looked = false;
    during("initialize", [&] {
        looked = true;
        EXPECT_FALSE(frmMain.cmdInstall.enabled);
        EXPECT_FALSE(frmMain.cmdExit.enabled);
        EXPECT_EQ(frmSettings.mousePointer, ui::MousePointer::Hourglass);
        EXPECT_FALSE(ui::click(frmSettings.cmdFormat));
        EXPECT_FALSE(ui::click(frmSettings.cmdRefresh));
    });
    ui::click(frmSettings.cmdFormat);
    EXPECT_TRUE(looked);
    EXPECT_TRUE(frmMain.cmdExit.enabled);
    EXPECT_EQ(frmSettings.mousePointer, ui::MousePointer::Default);
    EXPECT_TRUE(frmSettings.cmdFormat.usable());
    EXPECT_EQ(questions().size(), 1);
}

TEST_F(DiskToolsTest, AFormatInTheMiddleOfOtherWorkLeavesTheMainWindowPaused) {
    cStdIO StdIO(program.shared());
    OutputInterpreter interpreter(program.shared());
    ToolChannel channel(program.shared(), StdIO, interpreter);
    GuiSwitch guiSwitch(frmMain);
    const DiskTools tools(program.shared(), channel, interpreter, guiSwitch);
    list();
    guiSwitch.EnableGUI(false);
    ui::click(frmSettings.cmdFormat);
    EXPECT_FALSE(frmMain.cmdExit.enabled);
    guiSwitch.EnableGUI(true);
    EXPECT_TRUE(frmMain.cmdExit.enabled);
}

TEST_F(DiskToolsTest, TheEndOfTheProgramInTheMiddleOfAFormatEndsItThere) {
    list();
    during("initialize", [this] { ports.pump.end(); });
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(commands().last(), "initialize hdd1:");
    EXPECT_TRUE(ports.tray.balloons.empty());
}

} // namespace
} // namespace tarnwell::test

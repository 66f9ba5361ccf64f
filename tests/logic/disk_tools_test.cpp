#include "settings/disk_tools.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace tarnwell::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const QByteArray kDisks = "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                          "\thdd2:  38146MB, unknown format\r\n";
const QString kFormatted = "hdd1:  [111.8 GB] - Playstation2 Formatted";
const QString kUnformatted = "hdd2:  [37.3 GB] - Unknown Format";
const QString kAddress = "192.168.0.10";

class DiskToolsTest : public ProgramTest {
protected:
    DiskToolsTest() {
        start();
        frmSettings.show();
        frmSettings.TabStrip.selectedTab = ui::FrmSettings::kToolsTab;
        frmSettings.fmTools.visible = true;
    }

    void list(const QByteArray& disks = kDisks) {
        answerQueryWith(disks);
        ASSERT_TRUE(ui::click(frmSettings.cmdRefresh));
    }
    void expectEnabled(bool format, bool table) {
        EXPECT_EQ(frmSettings.cmdFormat.enabled, format);
        EXPECT_EQ(frmSettings.cmdBackupTOC.enabled, table);
        EXPECT_EQ(frmSettings.cmdRestoreTOC.enabled, table);
    }
    /// What happens while the tool carries out this command.
    void during(const QString& command, const std::function<void()>& event) {
        ports.launcher.on("tarnwell.exe " + command,
                          ChildScript{.output = {{"Working\r\n"}}, .endsAtMs = 500});
        ports.launcher.script = [this, command, event, usual = ports.launcher.script](const QString& line) {
            if (line.contains("tarnwell.exe " + command))
                ports.pump.after(100, event);
            return usual(line);
        };
    }
    QStringList questions() const { return ports.dialogs.questions; }

    ui::FrmSettings& frmSettings = program.shared().frmSettings.untouched();
};

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

TEST_F(DiskToolsTest, SavingTheTableRunsTheToolOnTheLongFormOfTheDisk) {
    list("\thdd10:  1024MB, formatted Playstation 2 HDD\r\n");
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    ASSERT_EQ(ports.dialogs.saveFileRequests.size(), 1U);
    const SaveFileRequest& asked = ports.dialogs.saveFileRequests[0];
    EXPECT_EQ(asked.filter, "HDLoader TOC File (*.bak)|*.bak|");
    EXPECT_EQ(asked.fileName, "tarntoc.bak");
    EXPECT_EQ(asked.folder, program.shared().config.AppFolder());
    EXPECT_TRUE(asked.askBeforeOverwriting);
    EXPECT_EQ(commands().last(), "backup_toc hdd10: " + path("table.bak"));
    EXPECT_TRUE(ports.ping.echoes.empty());
}

TEST_F(DiskToolsTest, AFileNameWithABlankGoesInQuotes) {
    list();
    ports.dialogs.saveFileAnswers = {path("my table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc hdd1: \"" + path("my table.bak") + '"');
}

TEST_F(DiskToolsTest, AChosenFileIsDeletedBeforeTheToolRuns) {
    list();
    writeFile("table.bak", "old");
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    bool there = true;
    during("backup_toc", [&] { there = QFile::exists(path("table.bak")); });
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_FALSE(there);
}

TEST_F(DiskToolsTest, CancellingTheSaveDialogLeavesEverythingAlone) {
    list();
    writeFile("tarntoc.bak", "old");
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_TRUE(QFile::exists(path("tarntoc.bak")));
    EXPECT_EQ(commands(), QStringList{"query"});
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DiskToolsTest, AFileThatCannotBeReplacedIsToldAndNothingRuns) {
    list();
    ports.dialogs.saveFileAnswers = {ports.folders.folder};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("cannot be replaced"));
    EXPECT_EQ(commands(), QStringList{"query"});
    EXPECT_TRUE(frmMain.cmdExit.enabled);
}

TEST_F(DiskToolsTest, WithAnAddressAloneTheTableGoesToTheConsole) {
    list("no disks\r\n");
    EXPECT_EQ(frmSettings.cmbHD.items(), QStringList{kAddress});
    ui::choose(frmSettings.cmbHD, 0);
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc 192.168.0.10 " + path("table.bak"));
    EXPECT_EQ(ports.ping.echoes.size(), 1U);
}

TEST_F(DiskToolsTest, TheLastEntryMeansTheAddressThatStandsThereNow) {
    list();
    ui::choose(frmSettings.cmbHD, 2);
    frmMain.txtIP.text = "10.0.0.7";
    ports.dialogs.openFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands().last(), "restore_toc 10.0.0.7 " + path("table.bak"));
}

TEST_F(DiskToolsTest, AConsoleThatDoesNotAnswerIsToldBeforeAnyDialog) {
    list();
    ui::choose(frmSettings.cmbHD, 2);
    ports.ping.reply.status = FakePing::kTimedOut;
    for (ui::Button* button : {&frmSettings.cmdBackupTOC, &frmSettings.cmdRestoreTOC}) {
        ui::click(*button);
        EXPECT_EQ(lastMessage(),
                  "A PS2 console could not be found at IP address: 192.168.0.10\r\n\r\n"
                  "Verify the following:\r\n\r\n"
                  "1. The PS2 console is currently running tarnd_svr.elf and it is fully initialized.\r\n"
                  "2. The IP address you entered matches the IP address configured in "
                  "mc0:SYS-CONF/IPCONFIG.DAT");
    }
    EXPECT_EQ(commands(), QStringList{"query"});
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    EXPECT_TRUE(questions().isEmpty());
}

TEST_F(DiskToolsTest, ALoneDiskWithoutAnAddressIsTakenForTheConsole) {
    frmMain.txtIP.text = "";
    list("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n");
    ASSERT_EQ(frmSettings.cmbHD.items(), QStringList{kFormatted});
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("at IP address: \r\n"));
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
}

TEST_F(DiskToolsTest, RestoringAsksFirst) {
    list();
    ports.dialogs.questionAnswer = false;
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_THAT(questions(), ElementsAre("Are you sure you want to do this?"));
    EXPECT_EQ(ports.dialogs.lastQuestion.icon, MessageIcon::Exclamation);
    EXPECT_EQ(ports.dialogs.lastQuestion.title, program.shared().title);
    EXPECT_TRUE(ports.dialogs.openFileRequests.empty());
}

TEST_F(DiskToolsTest, RestoringTakesAFileThatExists) {
    list();
    ports.dialogs.openFileAnswers = {path("my table.bak")};
    ui::click(frmSettings.cmdRestoreTOC);
    ASSERT_EQ(ports.dialogs.openFileRequests.size(), 1U);
    const OpenFileRequest& asked = ports.dialogs.openFileRequests[0];
    EXPECT_EQ(asked.filter, "HDLoader TOC File (*.bak)|*.bak|All Files (*.*)|*.*|");
    EXPECT_EQ(asked.folder, program.shared().config.AppFolder());
    EXPECT_TRUE(asked.mustExist);
    EXPECT_EQ(commands().last(), "restore_toc hdd1: \"" + path("my table.bak") + '"');
}

TEST_F(DiskToolsTest, CancellingTheOpenDialogRestoresNothing) {
    list();
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands(), QStringList{"query"});
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

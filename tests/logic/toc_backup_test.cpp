#include "logic/disk_tools_fixture.h"
#include "support/tool_argument.h"

#include <gmock/gmock.h>

namespace tarnwell::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// The table of contents of a disk, saved and restored.
class TocBackup : public DiskToolsTest {
protected:
    /// The answers to the dialogs of both.
    void chooseFile() {
        ports.dialogs.saveFileAnswers = {path("table.bak")};
        ports.dialogs.openFileAnswers = {path("table.bak")};
    }
    void expectNothingElseDuring(const QString& command, ui::Button& button) {
        chooseFile();
        bool looked = false;
        during(command, [&] {
            looked = true;
            EXPECT_FALSE(frmMain.cmdInstall.enabled);
            EXPECT_FALSE(frmMain.cmdExit.enabled);
            EXPECT_EQ(frmSettings.mousePointer, ui::MousePointer::Hourglass);
            EXPECT_FALSE(ui::click(frmSettings.cmdFormat));
            EXPECT_FALSE(ui::click(button));
        });
        EXPECT_TRUE(ui::click(button));
        EXPECT_TRUE(looked);
        EXPECT_TRUE(frmMain.cmdExit.enabled);
        EXPECT_EQ(frmSettings.mousePointer, ui::MousePointer::Default);
        EXPECT_TRUE(button.usable());
    }
};

TEST_F(TocBackup, SavingTheTableRunsTheToolOnTheLongFormOfTheDisk) {
    list("\thdd10:  1024MB, formatted Playstation 2 HDD\r\n");
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    ASSERT_EQ(ports.dialogs.saveFileRequests.size(), 1U);
    const SaveFileRequest& asked = ports.dialogs.saveFileRequests[0];
    EXPECT_EQ(asked.title, "Save Table of Contents As");
    EXPECT_EQ(asked.filter, "HDLoader TOC File (*.bak)|*.bak|");
    EXPECT_EQ(asked.fileName, "tarntoc.bak");
    EXPECT_EQ(asked.folder, program.shared().config.AppFolder());
    EXPECT_TRUE(asked.askBeforeOverwriting);
    EXPECT_EQ(commands().last(), "backup_toc hdd10: " + toolArgument(path("table.bak")));
    EXPECT_TRUE(ports.ping.echoes.empty());
}

TEST_F(TocBackup, ATableOutsideTheCodePageIsKnownByAShortNameOrNotTaken) {
    list();
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2/"), table = folder + "table.bak";
    ports.folders.namesInCodePage = {{folder, ""}, {table, ""}};
    ports.dialogs.saveFileAnswers = {table, table};
    ports.dialogs.openFileAnswers = {table, table};
    ui::click(frmSettings.cmdBackupTOC);
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(ports.dialogs.messages.size(), 2U);
    EXPECT_TRUE(lastMessage().startsWith(table + " cannot be used: "));
    EXPECT_EQ(commands(), QStringList("query"));
    ports.folders.namesInCodePage = {{folder, "/1A2B~1/"}};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc hdd1: /1A2B~1/table.bak");
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands().last(), "restore_toc hdd1: /1A2B~1/table.bak");
}

TEST_F(TocBackup, AFileNameWithABlankGoesInQuotes) {
    list();
    ports.dialogs.saveFileAnswers = {path("my table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc hdd1: \"" + path("my table.bak") + '"');
}

TEST_F(TocBackup, AChosenFileIsDeletedBeforeTheToolRuns) {
    list();
    writeFile("table.bak", "old");
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    bool there = true;
    during("backup_toc", [&] { there = QFile::exists(path("table.bak")); });
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_FALSE(there);
}

TEST_F(TocBackup, CancellingTheSaveDialogLeavesEverythingAlone) {
    list();
    writeFile("tarntoc.bak", "old");
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_TRUE(QFile::exists(path("tarntoc.bak")));
    EXPECT_EQ(commands(), QStringList{"query"});
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(TocBackup, AFileThatCannotBeReplacedIsToldAndNothingRuns) {
    list();
    ports.dialogs.saveFileAnswers = {ports.folders.folder};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("cannot be replaced"));
    EXPECT_EQ(commands(), QStringList{"query"});
    EXPECT_TRUE(frmMain.cmdExit.enabled);
}

TEST_F(TocBackup, WithAnAddressAloneTheTableGoesToTheConsole) {
    list("no disks\r\n");
    EXPECT_EQ(frmSettings.cmbHD.items(), QStringList{kAddress});
    ui::choose(frmSettings.cmbHD, 0);
    ports.dialogs.saveFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc 192.168.0.10 " + toolArgument(path("table.bak")));
    EXPECT_EQ(ports.ping.echoes.size(), 1U);
}

TEST_F(TocBackup, TheLastEntryMeansTheAddressThatStandsThereNow) {
    list();
    ui::choose(frmSettings.cmbHD, 2);
    frmMain.txtIP.text = "10.0.0.7";
    ports.dialogs.openFileAnswers = {path("table.bak")};
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands().last(), "restore_toc 10.0.0.7 " + toolArgument(path("table.bak")));
}

TEST_F(TocBackup, AConsoleThatDoesNotAnswerIsToldBeforeAnyDialog) {
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

TEST_F(TocBackup, AConsoleThatDoesNotAnswerIsNotAwaitedAnyMoreByTheListOfItsGames) {
    list();
    ui::choose(frmSettings.cmbHD, 2);
    during("tarn_toc", [this] {
        ports.ping.reply.status = FakePing::kTimedOut;
        EXPECT_TRUE(ui::click(frmSettings.cmdBackupTOC));
    });
    ports.launcher.on("tarnwell.exe tarn_toc", ChildScript{.output = {{kTwoGames, 200}}, .endsAtMs = 500});
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(ports.dialogs.messages.size(), 1U);
    EXPECT_EQ(frmMain.lstHD.count(), 0);
}

TEST_F(TocBackup, ALoneDiskWithoutAnAddressIsTakenForTheConsole) {
    frmMain.txtIP.text = "";
    list("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n");
    ASSERT_EQ(frmSettings.cmbHD.items(), QStringList{kFormatted});
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_THAT(lastMessage().toStdString(), HasSubstr("at IP address: \r\n"));
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
}

TEST_F(TocBackup, RestoringAsksFirst) {
    list();
    ports.dialogs.questionAnswer = false;
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_THAT(questions(), ElementsAre("Are you sure you want to do this?"));
    EXPECT_EQ(ports.dialogs.lastQuestion.icon, MessageIcon::Exclamation);
    EXPECT_EQ(ports.dialogs.lastQuestion.title, program.shared().title);
    EXPECT_TRUE(ports.dialogs.openFileRequests.empty());
}

TEST_F(TocBackup, RestoringTakesAFileThatExists) {
    list();
    ports.dialogs.openFileAnswers = {path("my table.bak")};
    ui::click(frmSettings.cmdRestoreTOC);
    ASSERT_EQ(ports.dialogs.openFileRequests.size(), 1U);
    const OpenFileRequest& asked = ports.dialogs.openFileRequests[0];
    EXPECT_EQ(asked.title, "Select Table of Contents to Restore");
    EXPECT_EQ(asked.filter, "HDLoader TOC File (*.bak)|*.bak|All Files (*.*)|*.*|");
    EXPECT_EQ(asked.folder, program.shared().config.AppFolder());
    EXPECT_TRUE(asked.mustExist);
    EXPECT_EQ(commands().last(), "restore_toc hdd1: \"" + path("my table.bak") + '"');
}

TEST_F(TocBackup, CancellingTheOpenDialogRestoresNothing) {
    list();
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands(), QStringList{"query"});
}

TEST_F(TocBackup, NothingElseCanBeStartedMeanwhile) {
    list();
    expectNothingElseDuring("backup_toc", frmSettings.cmdBackupTOC);
    expectNothingElseDuring("restore_toc", frmSettings.cmdRestoreTOC);
}

TEST_F(TocBackup, IsTriedWithoutAskingWhetherTheToolIsThere) {
    list();
    removeTool();
    chooseFile();
    ui::click(frmSettings.cmdBackupTOC);
    EXPECT_EQ(commands().last(), "backup_toc hdd1: " + toolArgument(path("table.bak")));
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(commands().last(), "restore_toc hdd1: " + toolArgument(path("table.bak")));
}

} // namespace
} // namespace tarnwell::test

#include "support/program_test.h"
#include "support/tool_argument.h"

namespace tarnwell::test {
namespace {

const QString kNothingChosen = "Please select a device from the list first.";

/// The tools page, whose buttons can cost a disk or a file.
class DiskToolsSafety : public ProgramTest {
protected:
    DiskToolsSafety() {
        start();
        ui::click(frmMain.cmdSettings);
        ui::selectTab(frmSettings.TabStrip, ui::FrmSettings::kToolsTab);
        answerQueryWith(kTwoDisks);
        ui::click(frmSettings.cmdRefresh);
    }

    /// The tool is there, but the system does not start it.
    void toolCannotBeStarted() {
        ports.launcher.script = [this](const QString& line) {
            tried_ += line.mid(path("tarnwell.exe ").size());
            return std::nullopt;
        };
    }
    void backUpTo(const QString& file) {
        ports.dialogs.saveFileAnswers = {path(file)};
        ui::click(frmSettings.cmdBackupTOC);
    }
    QStringList filesLike(const QString& pattern) const {
        return QDir(ports.folders.folder).entryList({pattern}, QDir::Files);
    }
    QByteArray contents(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }

    ui::FrmSettings& frmSettings = program.shared().frmSettings.untouched();
    QStringList tried_; ///< the commands of a tool that cannot be started
};

TEST_F(DiskToolsSafety, NothingIsFormattedAsLongAsNothingIsChosen) {
    answerQueryWith("no disks\r\n");
    ui::click(frmSettings.cmdRefresh);
    ASSERT_TRUE(ui::click(frmSettings.cmdFormat)) << "the console's address alone is listed";
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kNothingChosen));
    EXPECT_TRUE(ports.dialogs.questions.isEmpty());
    EXPECT_EQ(commands(), QStringList({"query", "query"}));
}

TEST_F(DiskToolsSafety, NoTableIsSavedOrRestoredAsLongAsNothingIsChosen) {
    answerQueryWith("no disks\r\n");
    ui::click(frmSettings.cmdRefresh);
    ui::click(frmSettings.cmdBackupTOC);
    ui::click(frmSettings.cmdRestoreTOC);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList({kNothingChosen, kNothingChosen}));
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    EXPECT_EQ(commands(), QStringList({"query", "query"}));
}

TEST_F(DiskToolsSafety, AFormatThatDidNotRunIsNotToldAsDone) {
    toolCannotBeStarted();
    ui::click(frmSettings.cmdFormat);
    EXPECT_EQ(tried_.value(0), "initialize hdd1:");
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(DiskToolsSafety, AFormatThatFoundTheToolAtWorkIsNotToldAsDone) {
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{"type\r\n", 30000}}, .endsAtMs = 30100});
    ports.pump.after(1000, [this] { ui::click(frmSettings.cmdFormat); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands().filter("initialize"), QStringList());
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(DiskToolsSafety, ASecondRefreshDuringTheFirstAddsNothing) {
    ports.launcher.on("tarnwell.exe query", {.output = {{kTwoDisks, 200}}, .endsAtMs = 500});
    bool second = true;
    for (const int when : {100, 300})
        ports.pump.after(when, [this, &second] { second = ui::click(frmSettings.cmdRefresh); });
    ui::click(frmSettings.cmdRefresh);
    EXPECT_FALSE(second);
    EXPECT_EQ(frmSettings.cmbHD.items(),
              QStringList({"hdd1:  [111.8 GB] - Playstation2 Formatted",
                           "hdd2:  [37.3 GB] - Playstation2 Formatted", "192.168.0.10"}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ui::click(frmSettings.cmdRefresh)) << "and then it can be used again";
}

TEST_F(DiskToolsSafety, TheOldTableStaysIfTheToolCannotBeStarted) {
    writeFile("table.bak", "old");
    toolCannotBeStarted();
    backUpTo("table.bak");
    EXPECT_EQ(tried_, QStringList("backup_toc hdd1: " + toolArgument(path("table.bak"))));
    EXPECT_EQ(contents("table.bak"), "old");
    EXPECT_EQ(filesLike("table*"), QStringList("table.bak"));
}

TEST_F(DiskToolsSafety, TheOldTableStaysIfTheToolIsAtWork) {
    writeFile("table.bak", "old");
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{"type\r\n", 30000}}, .endsAtMs = 30100});
    ports.pump.after(1000, [this] { backUpTo("table.bak"); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(contents("table.bak"), "old");
    EXPECT_EQ(filesLike("table*"), QStringList("table.bak"));
}

TEST_F(DiskToolsSafety, TheOldTableIsGoneOnceTheToolHasRun) {
    writeFile("table.bak", "old");
    writeFile("table.bak.old1", "somebody's own");
    backUpTo("table.bak");
    EXPECT_EQ(commands().last(), "backup_toc hdd1: " + toolArgument(path("table.bak")));
    EXPECT_EQ(filesLike("table*"), QStringList("table.bak.old1"));
    EXPECT_EQ(contents("table.bak.old1"), "somebody's own");
}

} // namespace
} // namespace tarnwell::test

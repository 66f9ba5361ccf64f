#include "logic/queue_test.h"

namespace tarnwell::test {
namespace {

const QString kStillAtWork =
    "tarnwell.exe is still at work, so nothing was started and nothing was changed. Wait until it "
    "has finished and try again.";

/// A console is being refreshed, which takes the tool some time, and the user already wants more.
class WorkBesideTool : public QueueTest {
protected:
    static constexpr int kWhileQueryRuns = 500;

    WorkBesideTool() {
        startProgram();
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.cmdISO);
        addInstalls(1);
        ui::click(frmMain.cmdControls);
        ui::click(frmMain.optBrowse);
        frmMain.lstHD.select(0);
        frmSettings.show();
        answerWith("tarnwell.exe query", {.output = {{kTwoDisks, 900}}, .endsAtMs = 1000});
    }

    /// What the user does while the tool answers.
    void meanwhile(const std::function<void()>& act) {
        ports.pump.after(kWhileQueryRuns, [this, act] {
            before_ = commands();
            act();
            EXPECT_EQ(commands(), before_) << "something was sent beside the running tool";
            refused_ = ports.dialogs.messageTexts();
        });
        ui::click(frmMain.cmdAttach);
    }
    void expectRefused() {
        EXPECT_EQ(refused_, QStringList(kStillAtWork));
        EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kStillAtWork));
        EXPECT_EQ(balloons(), QStringList());
        EXPECT_TRUE(frmMain.shown());
        EXPECT_EQ(jobCommands(), QStringList());
    }

    ui::FrmSettings& frmSettings = program.shared().frmSettings.untouched();

private:
    QStringList before_, refused_;
};

TEST_F(WorkBesideTool, AnInstallIsRefusedAndThePageStays) {
    ui::click(frmMain.optInstall);
    meanwhile([this] {
        frmMain.cmdInstall.enabled = true; // switched off by the refresh, but only at its start
        ui::click(frmMain.cmdInstall);
    });
    expectRefused();
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_FALSE(frmStatus.untouched().shown());
}

TEST_F(WorkBesideTool, TheQueueIsRefusedAndItsJobsWait) {
    frmMain.lstJob.setText(0, "Aborted");
    store("TurnOffPC", "1");
    ui::click(frmMain.optJobQueue);
    meanwhile([this] { ui::click(frmMain.cmdStart); });
    expectRefused();
    EXPECT_EQ(results(), QStringList("Aborted"));
    EXPECT_EQ(ports.power.shutDowns, 0u);
    EXPECT_FALSE(frmStatus.untouched().shown());
}

TEST_F(WorkBesideTool, ADeleteIsRefused) {
    meanwhile([this] { ui::click(frmMain.mnuDeleteNow); });
    expectRefused();
}

TEST_F(WorkBesideTool, ARenameIsRefusedAndTheNameStays) {
    QString name;
    meanwhile([this, &name] {
        ui::editLabel(frmMain.lstHD, 0, "Marsh Runner");
        name = frmMain.lstHD.row(0).text;
    });
    expectRefused();
    EXPECT_EQ(name, frmMain.lstHD.row(0).text);
    EXPECT_TRUE(name.endsWith("Lantern"));
}

class DiskToolBesideTool : public WorkBesideTool {
protected:
    DiskToolBesideTool() {
        frmSettings.fmTools.visible = true;
        frmSettings.cmbHD.addItem("hdd1:  [111.8 GB] - Playstation2 Formatted");
        frmSettings.cmbHD.addItem(kConsole);
        for (ui::Button* button :
             {&frmSettings.cmdFormat, &frmSettings.cmdBackupTOC, &frmSettings.cmdRestoreTOC})
            button->enabled = true;
        frmSettings.cmbHD.listIndex = 0;
    }
};

TEST_F(DiskToolBesideTool, AFormatIsRefused) {
    meanwhile([this] { ui::click(frmSettings.cmdFormat); });
    expectRefused();
}

TEST_F(DiskToolBesideTool, ABackupIsRefusedAndTheOldFileStays) {
    writeFile("tarntoc.bak", "the old table");
    meanwhile([this] {
        ports.dialogs.saveFileAnswers.push_back(path("tarntoc.bak"));
        ui::click(frmSettings.cmdBackupTOC);
    });
    expectRefused();
    EXPECT_TRUE(QFile::exists(path("tarntoc.bak")));
}

TEST_F(DiskToolBesideTool, ARestoreIsRefused) {
    meanwhile([this] {
        ports.dialogs.openFileAnswers.push_back(path("tarntoc.bak"));
        ui::click(frmSettings.cmdRestoreTOC);
    });
    expectRefused();
}

/// The end steps of a run, in the middle of its last refresh.
class SecondRun : public QueueTest {
protected:
    SecondRun() {
        startProgram();
        addInstalls(1);
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.cmdISO);
        answerWith("inject", succeeding());
        ports.launcher.script = [this, usual = ports.launcher.script](const QString& line) {
            if (line.contains("tarn_toc"))
                ports.pump.after(0, [this] { duringRefresh(); });
            return usual(line);
        };
    }
    std::function<void()> duringRefresh = [] {};
};

TEST_F(SecondRun, StartDoesNothingUntilTheHandlerOfTheLastRunHasEnded) {
    int refreshes = 0;
    duringRefresh = [this, &refreshes] {
        ++refreshes;
        frmMain.lstJob.setText(0, "Pending");
        showMain();
        frmMain.cmdStart.Click();
    };
    runQueue();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(jobCommands().size(), 1);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList());
}

TEST_F(SecondRun, InstallNowDoesNothingDuringTheLastRefreshOfTheQueue) {
    duringRefresh = [this] { frmMain.cmdInstall.Click(); };
    runQueue();
    EXPECT_EQ(jobCommands().size(), 1);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList());
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(SecondRun, ANewRunBeginsWhenTheLastHasEnded) {
    runQueue();
    frmMain.lstJob.setText(0, "Pending");
    runQueue();
    EXPECT_EQ(jobCommands().size(), 2);
}

TEST_F(SecondRun, AQuestionThatLostItsConnectionTakesNoProgressOfTheNextQueue) {
    const QByteArray lost = "An existing connection was forcibly closed by the remote host\r\n";
    answerWith("tarn_toc", {.output = {{lost}}});
    ui::click(frmMain.cmdAttach);
    answerWith("tarn_toc", {.output = {{kTwoGames}}});
    runQueue();
    EXPECT_EQ(results(), QStringList("Complete"));
    EXPECT_EQ(frmStatus->picCurrent.tag.get(), "100");
}

TEST_F(SecondRun, NorOfAnInstall) {
    const QByteArray lost = "An existing connection was forcibly closed by the remote host\r\n";
    answerWith("tarn_toc", {.output = {{lost}}});
    ui::click(frmMain.cmdAttach);
    frmMain.cmdInstall.enabled = true;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(frmStatus->picCurrent.tag.get(), "100");
}

TEST_F(SecondRun, ADeleteWhoseToolCannotBeStartedIsNotComplete) {
    frmMain.lstJob.clear();
    addJob("delete 192.168.0.10 Lantern", "Delete", kConsole, "");
    ports.launcher.script = [](const QString&) { return std::nullopt; };
    runQueue();
    EXPECT_EQ(results(), QStringList("Active"));
}

} // namespace
} // namespace tarnwell::test

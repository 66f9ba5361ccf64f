#include "logic/queue_test.h"
#include "ui/version.h"

namespace tarnwell::test {

namespace {

struct QueueCancel : ReadyQueueTest {};

} // namespace

TEST_F(QueueCancel, CancelInTheFirstJobAbortsAll) {
    addInstalls(3);
    answerWith("GAME1", endless());
    cancelAfter(1000);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted, kAborted}));
    EXPECT_EQ(jobCommands().size(), 1);
    EXPECT_FALSE(program.shared().blnQueueRunning);
    EXPECT_EQ(refreshes(), 2) << "the list is refreshed all the same";
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
}

TEST_F(QueueCancel, CancelInTheSecondOfFourAbortsAllBelowAlsoWhatWasComplete) {
    addInstalls(4);
    frmMain.lstJob.setText(2, kComplete);
    answerWith("GAME2", endless());
    cancelAfter(6000);
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kAborted, kAborted, kAborted}));
    EXPECT_EQ(program.shared().intJobIndex, 2);

    answerWith("GAME2", succeeding());
    QStringList tasks;
    frmStatus->lblTask.caption.changed.connect([&] { tasks += frmStatus->lblTask.caption.get(); });
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kComplete, kComplete, kComplete}));
    EXPECT_EQ(tasks, QStringList({"Currently on Job 3 of 4", "Currently on Job 4 of 4"}))
        << "the second's number stood there already";
    EXPECT_EQ(commands().filter("GAME1").size(), 1);
}

TEST_F(QueueCancel, CancelInTheLastJobLeavesTheOthers) {
    addInstalls(2);
    answerWith("GAME2", endless());
    cancelAfter(6000);
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kAborted}));
}

TEST_F(QueueCancel, CancelWaitsForTheStoppedToolAndSkipsThePowerActions) {
    store("TurnOffPC", "1");
    store("TurnOffPS2", "1");
    addInstalls(1);
    answerWith("GAME1", {.output = {{"1%\r", 100}}, .endsAtMs = kForEver, .farewellTakesMs = 3000});
    cancelAfter(1000);
    cancelAfter(1500);
    const qint64 start = ports.clock.now;
    runQueue();
    EXPECT_GE(ports.clock.now - start, 4000);
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_EQ(commands().filter("poweroff"), QStringList());
    for (const auto& child : ports.launcher.children)
        EXPECT_EQ(child->interrupts, child->commandLine.contains("inject") ? 1 : 0)
            << "a second does nothing";
}

TEST_F(QueueCancel, CancelAfterAHundredPercentAbortsTheJobAllTheSame) {
    addInstalls(2);
    answerWith("GAME1", {.output = {{"100%\r", 100}}, .endsAtMs = 2000, .heedsInterrupt = false});
    ports.pump.after(500, [this] {
        EXPECT_EQ(results()[0], kComplete);
        ui::click(frmStatus->cmdStop);
    });
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
}

TEST_F(QueueCancel, CancelDuringADeleteEndsTheQueueThere) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addJob("delete 192.168.0.10 B", "Delete", kConsole, "");
    answerWith("delete", {.output = {}, .endsAtMs = kForEver});
    cancelAfter(500);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

TEST_F(QueueCancel, ACancelledDeleteThatTakesItsTimeIsOverBeforeTheListIsRead) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    answerWith("delete", {.output = {}, .endsAtMs = kForEver, .farewellTakesMs = 7000});
    cancelAfter(500);
    QString activity;
    ports.pump.after(5000, [&] { activity = frmMain.txtOutput.text; });
    runQueue();
    EXPECT_TRUE(activity.startsWith("tarnwell.exe was told to stop and has not ended yet."));
    EXPECT_EQ(results(), QStringList(kAborted));
    const auto& children = ports.launcher.children;
    const auto& deletion = *std::ranges::find_if(
        children, [](const auto& child) { return child->commandLine.contains("delete"); });
    EXPECT_FALSE(deletion->runningAt(children.back()->startedAt));
    EXPECT_TRUE(commands().last().startsWith("tarn_toc"));
}

TEST_F(QueueCancel, CancelInThePauseAfterADeleteCountsForThatDelete) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addJob("delete 192.168.0.10 B", "Delete", kConsole, "");
    cancelAfter(700);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

} // namespace tarnwell::test

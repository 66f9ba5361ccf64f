#include "logic/queue_test.h"

namespace tarnwell::test {

namespace {

struct QueueRunner : ReadyQueueTest {};

} // namespace

TEST_F(QueueRunner, RunsAllJobsFromTopToBottom) {
    addInstalls(3);
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kComplete, kComplete}));
    EXPECT_EQ(jobCommands(),
              QStringList({"inject_dvd 192.168.0.10 GAME1 x.iso", "inject_dvd 192.168.0.10 GAME2 x.iso",
                           "inject_dvd 192.168.0.10 GAME3 x.iso"}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_FALSE(program.shared().blnQueueRunning);
    EXPECT_EQ(program.shared().intJobIndex, 4);
}

TEST_F(QueueRunner, AMissingToolStartsNothing) {
    addInstalls(1);
    removeTool();
    runQueue();
    EXPECT_EQ(lastMessage(),
              "tarnwell.exe was not found. Place it in the same directory as this program and try again.");
    EXPECT_EQ(results(), QStringList("Pending"));
    EXPECT_FALSE(frmStatus.untouched().loaded());
    EXPECT_TRUE(frmMain.shown());
    EXPECT_TRUE(frmMain.cmdStart.enabled);
}

TEST_F(QueueRunner, AnEmptyListRunsNothingButTheEnd) {
    store("TurnOffPC", "1");
    frmMain.cmdStart.Click();
    EXPECT_EQ(jobCommands(), QStringList());
    EXPECT_EQ(refreshes(), 1) << "that of the start";
    EXPECT_EQ(ports.power.shutDowns, 1);
    EXPECT_FALSE(frmMain.shown());
}

TEST_F(QueueRunner, ASecondRunSkipsWhatIsCompleteAndRepeatsTheRest) {
    addInstalls(4);
    answerWith("GAME2", failing("not enough free space."));
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kDiskFull, kComplete, kComplete}));

    answerWith("GAME2", succeeding());
    const qsizetype before = jobCommands().size();
    QStringList tasks;
    frmStatus->lblTask.caption.changed.connect([&] { tasks += frmStatus->lblTask.caption.get(); });
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kComplete, kComplete, kComplete}));
    EXPECT_EQ(jobCommands().mid(before), QStringList("inject_dvd 192.168.0.10 GAME2 x.iso"));
    EXPECT_EQ(tasks, QStringList("Currently on Job 2 of 4")) << "skipped rows keep their numbers";
}

TEST_F(QueueRunner, AllCompleteRunsNothingButTheEnd) {
    addInstalls(2);
    runQueue();
    store("TurnOffPC", "1");
    frmMain.mnuTasksSound.caption = "Sound when all tasks complete: end.wav";
    const qsizetype before = jobCommands().size();
    ports.sound.played.clear();
    int opened = 0;
    frmStatus->visible.changed.connect([&] { opened += frmStatus->shown() ? 1 : 0; });
    runQueue();
    EXPECT_EQ(jobCommands().size(), before);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(ports.sound.played, QStringList("end.wav"));
    EXPECT_EQ(ports.power.shutDowns, 1);
}

TEST_F(QueueRunner, OneFailureOfFiveStopsNothing) {
    addInstalls(5);
    answerWith("GAME2", failing(": The file exists."));
    runQueue();
    EXPECT_EQ(results(),
              QStringList({kComplete, "Error (File already exists)", kComplete, kComplete, kComplete}));
    EXPECT_FALSE(program.shared().blnQueueRunning) << "a later job has come to its end";
}

TEST_F(QueueRunner, AFullDiskFailsTheSecondOfThreeInstalls) {
    addInstalls(3);
    answerWith("GAME2", failing("There is not enough space on the disk."));
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kDiskFull, kComplete}));
    EXPECT_EQ(refreshes(), 2);
}

TEST_F(QueueRunner, AConsoleThatGoesInTheMiddleFailsTheRestAndIsNotRefreshed) {
    addInstalls(3);
    const ChildScript gone = failing("An existing connection was forcibly closed by the remote host.");
    answerWith("GAME2", gone);
    answerWith("GAME3", gone);
    ports.pump.after(5000, [this] { ports.ping.reply = {.status = FakePing::kTimedOut}; });
    runQueue();
    const QString lost = "Error (Could not connect to PS2, restart tarnd_svr.elf)";
    EXPECT_EQ(results(), QStringList({kComplete, lost, lost}));
    EXPECT_EQ(refreshes(), 1) << "that of the start";
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(frmMain.cmdStart.enabled);
}

TEST_F(QueueRunner, WordsEarlyInAJobAreOverwrittenWhenItComesToItsEnd) {
    addInstalls(1);
    answerWith("GAME1", {.output = {{"a warning\r\n", 100}, {"100%\r", 1000}}, .endsAtMs = 1100});
    ports.pump.after(500, [this] { EXPECT_EQ(results(), QStringList("Error (a warning\r\n)")); });
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
}

TEST_F(QueueRunner, AToolThatSaysNothingIsToldAndTheNextJobRuns) {
    addInstalls(2);
    answerWith("GAME1", silent());
    runQueue();
    EXPECT_EQ(commands().filter("GAME1").size(), 4);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("An unknown error has occurred."));
    EXPECT_EQ(results(), QStringList({"Active", kComplete}));
    answerWith("GAME1", succeeding());
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kComplete})) << "what was left active runs again";
}

TEST_F(QueueRunner, AJobBeginsAsOneThatIsNotDone) {
    addInstalls(2);
    answerWith("GAME2", {.output = {{"100%\r", 3000}}, .endsAtMs = 3100});
    bool first = false, second = true;
    ports.pump.after(4050, [&] { first = program.shared().blnJobDone; });
    ports.pump.after(5500, [&] { second = program.shared().blnJobDone; });
    runQueue();
    EXPECT_TRUE(first);
    EXPECT_FALSE(second);
}

TEST_F(QueueRunner, RunsNoMoreJobsThanItHasNumbersFor) {
    constexpr int kNumbers = 32766;
    answerWith("inject", {.output = {{"100%\r", 0}}, .endsAtMs = 30});
    for (int i = 1; i < kNumbers; ++i)
        frmMain.lstJob.append({.text = kComplete, .subItems = {"Install", "", "", "", "", "", ""}});
    addInstalls(2);
    runQueue();
    EXPECT_EQ(results().mid(kNumbers - 1), QStringList({kComplete, "Pending"}));
    EXPECT_EQ(jobCommands(), QStringList("inject_dvd 192.168.0.10 GAME1 x.iso"));
}

TEST_F(QueueRunner, FiveHundredJobsRunInTheirOrder) {
    constexpr int kJobs = 500;
    answerWith("inject", {.output = {{"100%\r", 0}}, .endsAtMs = 30});
    addInstalls(kJobs);
    runQueue();
    EXPECT_EQ(results().count(kComplete), kJobs);
    ASSERT_EQ(jobCommands().size(), kJobs);
    EXPECT_EQ(jobCommands()[kJobs - 1], "inject_dvd 192.168.0.10 GAME500 x.iso");
    EXPECT_EQ(frmStatus->picOverall.tag.get(), "100");
}

TEST_F(QueueRunner, AStartMakesEveryRowPendingThatIsNotComplete) {
    const QStringList left{"Pending", kAborted, kDiskFull, "SPTI Error (5)", "Active", kComplete};
    addInstalls(6);
    for (int i = 0; i < 6; ++i)
        frmMain.lstJob.setText(i, left[i]);
    QStringList seen;
    ports.pump.queue([&] { seen = results(); });
    runQueue();
    EXPECT_EQ(seen, QStringList({"Active", "Pending", "Pending", "Pending", "Pending", kComplete}));
}

} // namespace tarnwell::test

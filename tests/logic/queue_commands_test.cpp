#include "logic/queue_test.h"

namespace tarnwell::test {

namespace {

/// What the first word of a job's command decides.
struct QueueCommands : ReadyQueueTest {};

} // namespace

TEST_F(QueueCommands, ADeleteIsCompleteASecondAfterTheToolHasGoneEvenIfItFailed) {
    addJob("delete 192.168.0.10 LANTERN", "Delete", kConsole, "");
    answerWith("delete", {.output = {{"LANTERN: No such file.\r\n", 10}}, .endsAtMs = 60});
    const qint64 start = ports.clock.now;
    ports.pump.after(900, [this] { EXPECT_EQ(results(), QStringList("Active")); });
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
    EXPECT_GE(ports.clock.now - start, 1060);
    EXPECT_EQ(commands().filter("delete").size(), 1);
    EXPECT_EQ(refreshes(), 2);
    EXPECT_FALSE(program.shared().blnQueueRunning);
}

TEST_F(QueueCommands, AHandEditedCommandRunsAsItStands) {
    addInstalls(1);
    editCommand(0, "modify hdd1: A B");
    ports.launcher.on("modify", "done\r\n");
    bool seen = false;
    ports.pump.queue([&] {
        seen = true;
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "modify hdd1: A B");
        EXPECT_FALSE(program.shared().blnQueueRunning);
    });
    runQueue();
    EXPECT_TRUE(seen);
    EXPECT_EQ(jobCommands(), QStringList("modify hdd1: A B"));
    EXPECT_EQ(results(), QStringList("Active")) << "nobody knows how such a command ends";
}

TEST_F(QueueCommands, OddHandEditedCommandsHarmNoOther) {
    const QStringList odd{"delete", "dump", "dump cd0:", "inject_dvd", "x", "inject_dvd 192.168.0.10 \"open"};
    ports.launcher.on("tarnwell.exe", "usage\r\n");
    for (const QString& command : odd)
        addJob(command);
    addInstalls(1);
    answerWith("GAME1", succeeding());
    runQueue();
    EXPECT_EQ(jobCommands(), odd + QStringList("inject_dvd 192.168.0.10 GAME1 x.iso"));
    EXPECT_EQ(results().last(), kComplete);
    EXPECT_EQ(results().first(), kComplete) << "any delete is";
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(QueueCommands, ARowEditedWhileTheQueueRunsRunsAsEdited) {
    addInstalls(2);
    ports.pump.after(1000, [this] { editCommand(1, "inject_cd 192.168.0.10 OTHER y.iso"); });
    ports.pump.after(5500, [this] {
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "Installing [OTHER] onto Device [192.168.0.10]");
    });
    runQueue();
    EXPECT_EQ(jobCommands().last(), "inject_cd 192.168.0.10 OTHER y.iso");
    EXPECT_EQ(results(), QStringList({kComplete, kComplete}));
}

TEST_F(QueueCommands, TheRunningRowCannotBeEdited) {
    addInstalls(1);
    ports.pump.after(1000, [this] { editCommand(0, "x"); });
    runQueue();
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
}

TEST_F(QueueCommands, NothingIsRenamedWhileAJobDeletes) {
    // The list read anew would make Install Now usable, in the middle of the queue.
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addInstalls(1);
    ports.pump.after(700, [this] {
        showMain();
        ui::click(frmMain.cmdControls);
        ui::click(frmMain.optBrowse);
        EXPECT_FALSE(ui::editLabel(frmMain.lstHD, 0, "Other Name"));
        EXPECT_FALSE(frmMain.cmdInstall.enabled);
    });
    runQueue();
    EXPECT_EQ(jobCommands(), QStringList({"delete 192.168.0.10 A", "inject_dvd 192.168.0.10 GAME1 x.iso"}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(frmMain.cmdExit.enabled);
}

TEST_F(QueueCommands, TheNextJobBeginsASecondAfterADeleteHasEnded) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addJob("delete 192.168.0.10 B", "Delete", kConsole, "");
    answerWith("delete", {.output = {{"done\r\n", 10}}, .endsAtMs = 60});
    runQueue();
    std::vector<qint64> begun;
    for (const auto& child : ports.launcher.children) {
        if (child->commandLine.contains("delete"))
            begun.push_back(child->startedAt);
    }
    ASSERT_EQ(begun.size(), 2U);
    EXPECT_GE(begun[1] - begun[0], 60 + 1000);
    EXPECT_LE(begun[1] - begun[0], 60 + 1000 + 90);
}

TEST_F(QueueCommands, OnlyTheirWholeFirstWordMakesAJobOneThatReportsProgress) {
    const auto reportsProgress = [this](const QString& command) {
        frmMain.lstJob.clear();
        addJob(command);
        bool reports = false;
        ports.pump.after(50, [&] { reports = program.shared().blnQueueRunning; });
        runQueue();
        return reports;
    };
    answerWith("tarnwell.exe", {.output = {{"100%\r", 100}}, .endsAtMs = 200});
    for (const char* command :
         {"inject_dvd a b c", "inject_cd a b c", "inject_", "extract a b c", "dump a b"})
        EXPECT_TRUE(reportsProgress(command)) << command;
    for (const char* command : {"inject a b c", "injects a b c", "extract", "extracts a b c", "extract_ a",
                                "dump", "dumps a b", "dump_ a b", "Inject_dvd a b c", " dump a b"})
        EXPECT_FALSE(reportsProgress(command)) << command;
}

} // namespace tarnwell::test

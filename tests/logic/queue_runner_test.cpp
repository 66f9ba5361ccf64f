#include "logic/queue_test.h"
#include "queue/job_caption.h"
#include "queue/queue_runner.h"
#include "queue/wait_seconds.h"

namespace tarnwell::test {

namespace {

const QString kAborted = "Aborted";
const QString kComplete = "Complete";
const QString kDiskFull = "Error (Insufficient disk space)";

struct QueueRunner : QueueTest {
    QueueRunner() { startProgram(); }
};

} // namespace

TEST(JobCaption, TellsInWordsWhatEachKindOfCommandDoes) {
    EXPECT_EQ(JobCaption("inject_dvd 192.168.0.10 RATCHET x.iso SLUS_200.71 +1"),
              "Installing [RATCHET] onto Device [192.168.0.10]");
    EXPECT_EQ(JobCaption("inject_cd hdd1: TEKKEN y.iso"), "Installing [TEKKEN] onto Device [hdd1:]");
    EXPECT_EQ(JobCaption("extract hdd1: RATCHET out.iso"), "Backing-up Game [RATCHET] to PC");
    EXPECT_EQ(JobCaption("delete hdd1: RATCHET"), "Deleting Game [RATCHET] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("dump cd0: out.iso"), "Creating ISO File [out.iso]");
}

TEST(JobCaption, ADumpShowsTheFileWithoutItsFolder) {
    EXPECT_EQ(JobCaption(R"(dump cd0: "C:\my images\out.iso")"), "Creating ISO File [out.iso]");
    EXPECT_EQ(JobCaption("dump cd0: " + QDir::toNativeSeparators("/images/out.iso")),
              "Creating ISO File [out.iso]");
}

TEST(JobCaption, AQuotedNameStaysOneWord) {
    EXPECT_EQ(JobCaption("delete hdd1: \"Ratchet and Clank\""),
              "Deleting Game [Ratchet and Clank] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("inject_dvd \"my console\" \"Ratchet and Clank\" x.iso"),
              "Installing [Ratchet and Clank] onto Device [my console]");
    EXPECT_EQ(JobCaption("inject_dvd hdd1: \"\" x.iso"), "Installing [] onto Device [hdd1:]");
}

TEST(JobCaption, ACommandWithTooFewWordsStandsForItself) {
    for (const char* command : {"delete", "delete hdd1:", "dump cd0:", "inject_dvd",
                                "inject_cd hdd1:", "extract x", "", " ", "   ", "\"", "\"\""})
        EXPECT_EQ(JobCaption(command), command);
}

TEST(JobCaption, AnythingElseStandsForItself) {
    for (const char* command :
         {"modify hdd1: A B", "Delete hdd1: A", "inject_ hdd1: A", "one two three four"})
        EXPECT_EQ(JobCaption(command), command);
}

TEST(JobCaption, OddBlanksAndQuotesAreReadAsTheyStand) {
    EXPECT_EQ(JobCaption("  delete hdd1: A"), "Deleting Game [A] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("delete  A"), "Deleting Game [A] from Device []") << "an empty word in between";
    EXPECT_EQ(JobCaption("delete hdd1: A "), "Deleting Game [A ] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("delete hdd1: \"Ratchet and"), "Deleting Game [Ratchet and] from Device [hdd1:]")
        << "a quote that is never closed ends with the command";
    EXPECT_EQ(JobCaption("delete hdd1: junk\"A B\"xC"), "Deleting Game [A B] from Device [hdd1:]");
}

TEST(WaitSeconds, LetsEventsInUntilTheTimeHasGoneBy) {
    FakePorts ports;
    const qint64 start = ports.clock.now;
    int served = 0;
    ports.pump.after(400, [&] { ++served; });
    ports.pump.after(900, [&] { ++served; });
    WaitSeconds(1.0, ports.ports());
    EXPECT_EQ(served, 2);
    EXPECT_GE(ports.clock.now - start, 1000);
    EXPECT_LE(ports.clock.now - start, 1050);
    EXPECT_LE(ports.pump.pumps, 50) << "asleep in between";
}

TEST(WaitSeconds, AWaitThatMeetsMidnightEndsThere) {
    FakePorts ports;
    ports.clock.secondsAtZero = 24 * 60 * 60 - 1.5; // half a second before midnight
    ports.pump.after(5000, [&] { ports.pump.end(); });
    const qint64 start = ports.clock.now;
    WaitSeconds(1.0, ports.ports());
    EXPECT_LE(ports.clock.now - start, 550);
}

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

TEST_F(QueueRunner, TheStatusWindowFollowsTheJobs) {
    addInstalls(2);
    frmStatus->lblSpeed.caption = "Speed: of another day";
    frmStatus->lblRemaining.caption = "of another day";
    frmStatus->lblCurrentElapsed.caption = "of another day";
    ports.pump.queue([this] {
        EXPECT_TRUE(frmStatus->shown());
        EXPECT_FALSE(frmMain.shown());
        EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
        EXPECT_EQ(frmStatus->lblTask.caption.get(), "Currently on Job 1 of 2");
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "Installing [GAME1] onto Device [192.168.0.10]");
        EXPECT_EQ(frmStatus->lblSpeed.caption.get(), "Speed: n/a");
        EXPECT_EQ(frmStatus->lblRemaining.caption.get(), "Time remaining: n/a");
        EXPECT_EQ(frmStatus->lblCurrentElapsed.caption.get(), "00:00:00");
        EXPECT_EQ(results(), QStringList({"Active", "Pending"}));
        EXPECT_EQ(frmMain.lstJob.selectedItem, 0);
        EXPECT_FALSE(frmMain.cmdStart.enabled);
        EXPECT_FALSE(frmMain.cmdRemove.enabled);
        EXPECT_FALSE(frmMain.cmdAddGame.enabled);
    });
    ports.pump.after(7000, [this] {
        EXPECT_EQ(frmStatus->lblTask.caption.get(), "Currently on Job 2 of 2");
        EXPECT_EQ(results(), QStringList({kComplete, "Active"}));
        EXPECT_EQ(frmMain.lstJob.selectedItem, 1);
        EXPECT_EQ(frmStatus->picCurrent.drawing.get().text, "50%");
        EXPECT_EQ(frmStatus->picOverall.drawing.get().text, "75%");
        EXPECT_EQ(frmStatus->lblCurrentElapsed.caption.get(), "00:00:02");
        EXPECT_EQ(frmStatus->lblOverallElapsed.caption.get(), "00:00:06");
        EXPECT_TRUE(ports.tray.tip().startsWith("Current: 50%\r\nOverall: 75%\r\nJob 2 of 2"));
    });
    runQueue();
    EXPECT_FALSE(frmStatus->shown());
    EXPECT_FALSE(frmMain.shown()) << "only the user brings it back";
    EXPECT_TRUE(frmMain.cmdStart.enabled);
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v1.5 by mirelane");
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(QueueRunner, TheStatusWindowIsCentredUnlessItIsMinimised) {
    addInstalls(1);
    frmMain.left = 1000;
    frmMain.top = 2000;
    runQueue();
    EXPECT_EQ(frmStatus->left, 1000 + frmMain.width / 2 - frmStatus->width / 2);
    EXPECT_EQ(frmStatus->top, 2000 + frmMain.height / 2 - frmStatus->height / 2);

    showMain();
    frmStatus->left = 77;
    frmStatus->windowState = ui::WindowState::Minimised;
    runQueue();
    EXPECT_EQ(frmStatus->left, 77);
}

TEST_F(QueueRunner, TheStatusWindowStaysOnTopIfTheStoreSaysExactlyThat) {
    addInstalls(1);
    store("StayOnTop", "1.0");
    runQueue();
    EXPECT_FALSE(frmStatus->topmost);
    store("StayOnTop", "1");
    runQueue();
    EXPECT_TRUE(frmStatus->topmost);
}

TEST_F(QueueRunner, TheStatusWindowStaysIfTheSettingsSaySo) {
    program.shared().frmSettings->chkCloseStatus.value = 0;
    addInstalls(1);
    runQueue();
    EXPECT_TRUE(frmStatus->shown());
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

TEST_F(QueueRunner, AfterAFailedLastJobTheStatusWindowDoesNotCloseUntilALaterJobIsDone) {
    store("CloseStatus", "0");
    addInstalls(1);
    answerWith("GAME1", failing("not enough free space."));
    runQueue();
    EXPECT_EQ(results(), QStringList(kDiskFull));
    EXPECT_TRUE(program.shared().blnQueueRunning);
    EXPECT_FALSE(ui::close(frmStatus.untouched()));
    EXPECT_EQ(frmStatus->windowState, ui::WindowState::Minimised);
    EXPECT_EQ(refreshes(), 2) << "whose answer went nowhere and did no harm";
    EXPECT_TRUE(ports.dialogs.messages.empty());

    answerWith("GAME1", succeeding());
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
    EXPECT_TRUE(ui::close(frmStatus.untouched()));
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
}

TEST_F(QueueRunner, ADeleteIsCompleteASecondAfterTheToolHasGoneEvenIfItFailed) {
    addJob("delete 192.168.0.10 RATCHET", "Delete", kConsole, "");
    answerWith("delete", {.output = {{"RATCHET: No such file.\r\n", 10}}, .endsAtMs = 60});
    const qint64 start = ports.clock.now;
    ports.pump.after(900, [this] { EXPECT_EQ(results(), QStringList("Active")); });
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
    EXPECT_GE(ports.clock.now - start, 1060);
    EXPECT_EQ(commands().filter("delete").size(), 1);
    EXPECT_EQ(refreshes(), 2);
    EXPECT_FALSE(program.shared().blnQueueRunning);
}

TEST_F(QueueRunner, AHandEditedCommandRunsAsItStands) {
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

TEST_F(QueueRunner, OddHandEditedCommandsHarmNoOther) {
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

TEST_F(QueueRunner, ARowEditedWhileTheQueueRunsRunsAsEdited) {
    addInstalls(2);
    ports.pump.after(1000, [this] { editCommand(1, "inject_cd 192.168.0.10 OTHER y.iso"); });
    ports.pump.after(5500, [this] {
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "Installing [OTHER] onto Device [192.168.0.10]");
    });
    runQueue();
    EXPECT_EQ(jobCommands().last(), "inject_cd 192.168.0.10 OTHER y.iso");
    EXPECT_EQ(results(), QStringList({kComplete, kComplete}));
}

TEST_F(QueueRunner, TheRunningRowCannotBeEdited) {
    addInstalls(1);
    ports.pump.after(1000, [this] { editCommand(0, "x"); });
    runQueue();
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
}

TEST_F(QueueRunner, OnlyANetworkedConsoleIsRefreshedAtTheEnd) {
    addJob("inject_dvd 192.168.0.10 GAME x.iso");
    runQueue();
    EXPECT_EQ(refreshes(), 2);

    showMain();
    frmMain.optLocal.value = true;
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(refreshes(), 3);
    frmMain.lstJob.clear();
    addJob("inject_dvd hdd1: GAME x.iso", "Install", "x.iso", "hdd1:");
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
    EXPECT_EQ(refreshes(), 3) << "the row names the disk by less than its entry";
}

TEST_F(QueueRunner, AQueueForAnotherDeviceEndsWithoutARefresh) {
    addJob("extract 192.168.0.10 RATCHET out.iso", "Backup to PC", kConsole, "out.iso");
    addJob("delete 192.168.0.99 RATCHET", "Delete", "192.168.0.99", "");
    answerWith("extract", succeeding());
    runQueue();
    EXPECT_EQ(refreshes(), 1) << "that of the start";
}

TEST_F(QueueRunner, SkippedRowsCountForTheRefreshToo) {
    addInstalls(1);
    frmMain.lstJob.setText(0, kComplete);
    runQueue();
    EXPECT_EQ(jobCommands(), QStringList());
    EXPECT_EQ(refreshes(), 2);
}

TEST_F(QueueRunner, AnUnreadableGameListAtTheEndStopsNoPowerAction) {
    store("TurnOffPC", "1");
    addInstalls(1);
    answerTocWith("type   size flags          dma startup      name\r\n"
                  "DVD  4193280KB                SLUS_200.71 @@@Ratchet\r\n"
                  "total MB, used MB, available");
    runQueue();
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(ports.power.shutDowns, 1);
}

TEST_F(QueueRunner, CancelInTheFirstJobAbortsAll) {
    addInstalls(3);
    answerWith("GAME1", endless());
    cancelAfter(1000);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted, kAborted}));
    EXPECT_EQ(jobCommands().size(), 1);
    EXPECT_FALSE(program.shared().blnQueueRunning);
    EXPECT_EQ(refreshes(), 2) << "the list is refreshed all the same";
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v1.5 by mirelane");
}

TEST_F(QueueRunner, CancelInTheSecondOfFourAbortsAllBelowAlsoWhatWasComplete) {
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

TEST_F(QueueRunner, CancelInTheLastJobLeavesTheOthers) {
    addInstalls(2);
    answerWith("GAME2", endless());
    cancelAfter(6000);
    runQueue();
    EXPECT_EQ(results(), QStringList({kComplete, kAborted}));
}

TEST_F(QueueRunner, CancelWaitsForTheStoppedToolAndSkipsThePowerActions) {
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

TEST_F(QueueRunner, CancelAfterAHundredPercentAbortsTheJobAllTheSame) {
    addInstalls(2);
    answerWith("GAME1", {.output = {{"100%\r", 100}}, .endsAtMs = 2000, .heedsInterrupt = false});
    ports.pump.after(500, [this] {
        EXPECT_EQ(results()[0], kComplete);
        ui::click(frmStatus->cmdStop);
    });
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
}

TEST_F(QueueRunner, CancelDuringADeleteEndsTheQueueThere) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addJob("delete 192.168.0.10 B", "Delete", kConsole, "");
    answerWith("delete", {.output = {}, .endsAtMs = kForEver});
    cancelAfter(500);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

TEST_F(QueueRunner, ACancelledDeleteThatTakesItsTimeIsOverBeforeTheListIsRead) {
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

TEST_F(QueueRunner, CancelInThePauseAfterADeleteCountsForThatDelete) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addJob("delete 192.168.0.10 B", "Delete", kConsole, "");
    cancelAfter(700);
    runQueue();
    EXPECT_EQ(results(), QStringList({kAborted, kAborted}));
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

TEST_F(QueueRunner, ExitInTheMiddleRunsNoLaterStep) {
    store("TurnOffPC", "1");
    frmMain.mnuTaskSound.caption = "Sound when task completes: task.wav";
    addInstalls(2);
    ports.pump.after(1000, [this] { ui::click(frmMain.mnuExit); });
    runQueue();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_EQ(jobCommands(), QStringList("inject_dvd 192.168.0.10 GAME1 x.iso"));
    EXPECT_EQ(refreshes(), 1) << "that of the start";
    EXPECT_EQ(ports.launcher.children.back()->interrupts, 0) << "the tool works on";
    EXPECT_EQ(ports.sound.played, QStringList());
    EXPECT_EQ(ports.power.shutDowns, 0);
    EXPECT_FALSE(ports.tray.shown);
}

TEST_F(QueueRunner, ExitInThePauseAfterADeleteRunsNoLaterStep) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addInstalls(1);
    ports.pump.after(700, [this] { ui::click(frmMain.mnuExit); });
    runQueue();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

TEST_F(QueueRunner, NothingIsRenamedWhileAJobDeletes) {
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

} // namespace tarnwell::test

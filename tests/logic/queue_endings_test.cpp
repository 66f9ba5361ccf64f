#include "logic/queue_test.h"

namespace tarnwell::test {

namespace {

struct QueueEndings : ReadyQueueTest {};

} // namespace

TEST_F(QueueEndings, OnlyANetworkedConsoleIsRefreshedAtTheEnd) {
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

TEST_F(QueueEndings, AQueueForAnotherDeviceEndsWithoutARefresh) {
    addJob("extract 192.168.0.10 LANTERN out.iso", "Backup to PC", kConsole, "out.iso");
    addJob("delete 192.168.0.99 LANTERN", "Delete", "192.168.0.99", "");
    answerWith("extract", succeeding());
    runQueue();
    EXPECT_EQ(refreshes(), 1) << "that of the start";
}

TEST_F(QueueEndings, SkippedRowsCountForTheRefreshToo) {
    addInstalls(1);
    frmMain.lstJob.setText(0, kComplete);
    runQueue();
    EXPECT_EQ(jobCommands(), QStringList());
    EXPECT_EQ(refreshes(), 2);
}

TEST_F(QueueEndings, AnUnreadableGameListAtTheEndStopsNoPowerAction) {
    store("TurnOffPC", "1");
    addInstalls(1);
    answerTocWith("type   size flags          dma startup      name\r\n"
                  "DVD  4193280KB                SLUS_990.71 @@@Lantern\r\n"
                  "total MB, used MB, available");
    runQueue();
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(ports.power.shutDowns, 1);
}

TEST_F(QueueEndings, ExitInTheMiddleRunsNoLaterStep) {
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

TEST_F(QueueEndings, ExitInThePauseAfterADeleteRunsNoLaterStep) {
    addJob("delete 192.168.0.10 A", "Delete", kConsole, "");
    addInstalls(1);
    ports.pump.after(700, [this] { ui::click(frmMain.mnuExit); });
    runQueue();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_EQ(jobCommands(), QStringList("delete 192.168.0.10 A"));
}

} // namespace tarnwell::test

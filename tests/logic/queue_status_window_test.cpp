#include "logic/queue_test.h"
#include "ui/version.h"

namespace tarnwell::test {

namespace {

/// What the status window shows while the queue runs, and whether it can be closed.
struct QueueStatusWindow : ReadyQueueTest {
    void addDelete() { addJob("delete 192.168.0.10 LANTERN", "Delete", kConsole, ""); }
    /// The window's own close box, this long after now.
    void closeAfter(int milliseconds) {
        ports.pump.after(milliseconds, [this] { closed = ui::close(frmStatus.untouched()); });
    }

    std::optional<bool> closed;
};

} // namespace

TEST_F(QueueStatusWindow, TheStatusWindowFollowsTheJobs) {
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
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(QueueStatusWindow, TheStatusWindowIsCentredUnlessItIsMinimised) {
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

TEST_F(QueueStatusWindow, TheStatusWindowStaysOnTopIfTheStoreSaysExactlyThat) {
    addInstalls(1);
    store("StayOnTop", "1.0");
    runQueue();
    EXPECT_FALSE(frmStatus->topmost);
    store("StayOnTop", "1");
    runQueue();
    EXPECT_TRUE(frmStatus->topmost);
}

TEST_F(QueueStatusWindow, TheStatusWindowStaysIfTheSettingsSaySo) {
    program.shared().frmSettings->chkCloseStatus.value = 0;
    addInstalls(1);
    runQueue();
    EXPECT_TRUE(frmStatus->shown());
}

TEST_F(QueueStatusWindow, AfterAFailedLastJobTheStatusWindowDoesNotCloseUntilALaterJobIsDone) {
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

TEST_F(QueueStatusWindow, AfterAFailedJobItDoesNotCloseInTheNextOneEither) {
    addInstalls(1);
    addDelete();
    answerWith("GAME1", failing("not enough free space."));
    closeAfter(1200);
    runQueue();
    EXPECT_EQ(results(), QStringList({kDiskFull, kComplete}));
    EXPECT_EQ(closed, false);
}

TEST_F(QueueStatusWindow, AfterAFailedLastJobItDoesNotCloseInTheNextRunEither) {
    addInstalls(1);
    answerWith("GAME1", failing("not enough free space."));
    runQueue();
    frmMain.lstJob.clear();
    addDelete();
    closeAfter(500);
    runQueue();
    EXPECT_EQ(results(), QStringList(kComplete));
    EXPECT_EQ(closed, false);
}

TEST_F(QueueStatusWindow, DuringADeleteItCloses) {
    addDelete();
    closeAfter(500);
    runQueue();
    EXPECT_EQ(closed, true);
}

TEST_F(QueueStatusWindow, ANewJobLeavesTheOverallClockAndTheBarsAsTheyStand) {
    addInstalls(2);
    answerWith("GAME2", {.output = {{"100%\r", 3000}}, .endsAtMs = 3100});
    bool looked = false;
    ports.pump.after(5500, [&] {
        looked = true;
        EXPECT_EQ(frmStatus->lblTask.caption.get(), "Currently on Job 2 of 2");
        EXPECT_EQ(frmStatus->lblCurrentElapsed.caption.get(), "00:00:00");
        EXPECT_EQ(frmStatus->lblOverallElapsed.caption.get(), "00:00:04");
        EXPECT_EQ(frmStatus->picCurrent.drawing.get().text, "100%");
        EXPECT_EQ(frmStatus->picOverall.drawing.get().text, "50%");
        EXPECT_EQ(frmStatus->picOverall.tag.get(), "50");
    });
    runQueue();
    EXPECT_TRUE(looked);
}

} // namespace tarnwell::test

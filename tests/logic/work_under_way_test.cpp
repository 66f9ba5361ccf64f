#include "base/fault.h"
#include "logic/queue_test.h"

namespace tarnwell::test {

namespace {

constexpr int kInTheMiddleMs = 2500;

/// The machine and the task button, while an install or a queue runs.
struct WorkUnderWay : QueueTest {
    WorkUnderWay() { startProgram(); }

    void prepareInstall() {
        ui::click(frmMain.cmdControls);
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.cmdISO);
    }
    void lookInTheMiddle() {
        ports.pump.after(kInTheMiddleMs, [this] {
            awake = ports.wakeLock.held;
            heldUp = ports.session.heldUp;
            percent = ports.taskbar.percent;
        });
    }
    void expectOver() {
        EXPECT_FALSE(ports.wakeLock.held);
        EXPECT_FALSE(ports.session.heldUp);
        EXPECT_FALSE(ports.taskbar.percent);
    }

    bool awake = false;
    bool heldUp = false;
    std::optional<int> percent;
};

/// Notes whether the machine is kept awake, or the session held up, when the machine is sent to sleep.
struct WatchedPower : Power {
    explicit WatchedPower(const FakePorts& ports) : fakes(ports) {}
    void shutDown() override {}
    void standBy() override { heldAtStandBy = fakes.wakeLock.held || fakes.session.heldUp; }
    const FakePorts& fakes;
    std::optional<bool> heldAtStandBy;
};

} // namespace

TEST_F(WorkUnderWay, AnInstallKeepsTheMachineAwakeAndTellsTheTaskButton) {
    prepareInstall();
    expectOver();
    lookInTheMiddle();
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(awake);
    EXPECT_EQ(percent, 50);
    expectOver();
}

TEST_F(WorkUnderWay, AQueueKeepsTheMachineAwakeFromItsFirstJobToItsLast) {
    addInstalls(2);
    int asleep = 0;
    for (int moment = 50; moment < 8200; moment += 50)
        ports.pump.after(moment, [&] { asleep += ports.wakeLock.held ? 0 : 1; });
    lookInTheMiddle();
    runQueue();
    EXPECT_EQ(asleep, 0);
    EXPECT_EQ(percent, 25) << "half of the first of two jobs";
    EXPECT_EQ(ports.wakeLock.reasons.size(), 1);
    expectOver();
}

TEST_F(WorkUnderWay, TheSystemIsAskedToWaitWithTheEndOfTheSessionAndToldWhy) {
    prepareInstall();
    lookInTheMiddle();
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(heldUp);
    EXPECT_EQ(ports.session.reasons, QStringList("Work on PS2 games is under way"));
    expectOver();
}

TEST_F(WorkUnderWay, ADeleteAtOnceIsWork) {
    ui::click(frmMain.optBrowse);
    frmMain.lstHD.select(0);
    ports.pump.after(500, [this] { heldUp = ports.session.heldUp; });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_TRUE(heldUp);
    expectOver();
}

TEST_F(WorkUnderWay, AFormatIsWork) {
    ui::FrmSettings& frmSettings = *program.shared().frmSettings;
    ui::click(frmMain.cmdSettings);
    ui::selectTab(frmSettings.TabStrip, ui::FrmSettings::kToolsTab);
    ui::click(frmSettings.cmdRefresh);
    ui::choose(frmSettings.cmbHD, 0);
    answerWith("initialize", ChildScript{.endsAtMs = 1000});
    ports.pump.after(500, [this] { heldUp = ports.session.heldUp; });
    ui::click(frmSettings.cmdFormat);
    EXPECT_TRUE(heldUp);
    expectOver();
}

TEST_F(WorkUnderWay, GivesTheToolItsInterruptIfTheSessionEndsAllTheSame) {
    store("ClosePS2", "1");
    prepareInstall();
    ports.pump.after(kInTheMiddleMs, [this] { ports.session.ending(); });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.launcher.children.back()->interrupts, 1);
    EXPECT_EQ(commands().filter("poweroff"), QStringList()) << "there is no time for it";
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_FALSE(ports.tray.shown);
    EXPECT_TRUE(ports.dialogs.messages.empty()) << "nobody could read it";
    expectOver();
}

TEST_F(WorkUnderWay, TheEndOfTheSessionWithoutWorkEndsTheProgram) {
    ports.session.ending();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_FALSE(ports.tray.shown);
}

TEST_F(WorkUnderWay, ARefusedStartLeavesTheMachineAlone) {
    addInstalls(1);
    removeTool();
    ui::click(frmMain.cmdStart);
    EXPECT_TRUE(ports.wakeLock.reasons.isEmpty());
}

TEST_F(WorkUnderWay, ACancelledInstallKeepsTheMachineAwakeUntilTheToolHasGone) {
    prepareInstall();
    ChildScript slow = succeeding();
    slow.farewellTakesMs = 3000;
    answerWith("inject", slow);
    cancelAfter(500);
    lookInTheMiddle();
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(awake);
    expectOver();
}

TEST_F(WorkUnderWay, ACancelledQueueIsOver) {
    addInstalls(3);
    cancelAfter(kInTheMiddleMs);
    runQueue();
    expectOver();
}

TEST_F(WorkUnderWay, AFailedJobIsOver) {
    answerWith("inject", failing("not enough free space on the disk"));
    addInstalls(1);
    runQueue();
    EXPECT_TRUE(program.shared().blnQueueRunning) << "as after every failed last job";
    expectOver();
}

TEST_F(WorkUnderWay, AToolThatSaysNothingIsOver) {
    answerWith("inject", silent());
    addInstalls(1);
    runQueue();
    EXPECT_FALSE(ports.dialogs.messages.empty());
    expectOver();
}

TEST_F(WorkUnderWay, AFaultInTheMiddleEndsIt) {
    addInstalls(1);
    frmStatus->lblJob.caption.changed.connect([] { throw Fault("nobody can read this"); });
    runQueue();
    EXPECT_EQ(lastMessage(), "nobody can read this");
    EXPECT_EQ(ports.wakeLock.reasons.size(), 1);
    expectOver();
}

TEST_F(WorkUnderWay, TheEndOfTheProgramEndsIt) {
    prepareInstall();
    lookInTheMiddle();
    ports.pump.after(kInTheMiddleMs + 100, [this] { ui::click(frmMain.mnuExit); });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(awake);
    expectOver();
}

TEST_F(WorkUnderWay, ThePercentOnTheTaskButtonStaysInItsRange) {
    answerWith("inject", ChildScript{.output = {{"140%\r", 100}}, .endsAtMs = 4000});
    addInstalls(1);
    lookInTheMiddle();
    runQueue();
    EXPECT_EQ(percent, 100);
}

TEST(WorkUnderWayAtItsEnd, TheMachineCanBeSentToSleepByTheCompletionActions) {
    FakePorts fakes;
    WatchedPower power(fakes);
    const Ports ports{fakes.pump,    fakes.clock,    fakes.launcher, fakes.processes,
                      fakes.dialogs, fakes.tray,     fakes.sound,    power,
                      fakes.ping,    fakes.listener, fakes.browser,  fakes.wakeLock,
                      fakes.session, fakes.taskbar,  fakes.folders,  fakes.windows};
    QFile tool(fakes.folders.folder + "/tarnwell.exe");
    ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
    fakes.launcher.on("inject", "100%\r");
    Program program(ports);
    program.start();
    program.shared().config.write("StandbyPC", "1");
    ui::FrmMain& frmMain = program.shared().frmMain;
    frmMain.lstJob.append({.text = "Pending",
                           .subItems = {"Install", "x.iso", "hdd1:", "", "", "", ""},
                           .tag = "inject_dvd hdd1: GAME x.iso"});
    frmMain.cmdStart.enabled = true;
    ui::click(frmMain.optJobQueue);
    EXPECT_TRUE(ui::click(frmMain.cmdStart));
    EXPECT_EQ(power.heldAtStandBy, false);
    EXPECT_EQ(fakes.wakeLock.reasons.size(), 1);
}

} // namespace tarnwell::test

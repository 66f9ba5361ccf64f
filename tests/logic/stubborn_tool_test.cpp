#include "logic/queue_test.h"

#include <stdexcept>

namespace tarnwell::test {
namespace {

const QString kEndByForce =
    "tarnwell.exe was told to stop and has not ended yet. Do you want to end it by force? "
    "What it was writing stays incomplete.";

/// A tool that is told to stop and works on.
class StubbornTool : public QueueTest {
protected:
    StubbornTool() {
        startProgram();
        addInstalls(2);
        ChildScript deaf = endless();
        deaf.heedsInterrupt = false;
        answerWith("inject", deaf);
    }
    /// Ends a test whose tool would never end.
    void endToolAfter(int milliseconds) {
        ports.pump.after(milliseconds, [this] {
            for (const auto& child : ports.launcher.children)
                child->script.endsAtMs = 0;
        });
    }
    bool endedByForce() const { return ports.launcher.children.back()->endedByForce; }
    QStringList questions() const { return ports.dialogs.questions; }
};

TEST_F(StubbornTool, IsWaitedForAndTheStatusWindowSaysSo) {
    QString told;
    cancelAfter(1000);
    ports.pump.after(5000, [&] { told = frmStatus->lblRemaining.caption; });
    endToolAfter(6000);
    runQueue();
    EXPECT_EQ(told, "Waiting for tarnwell.exe to end");
    EXPECT_EQ(frmStatus->lblRemaining.caption.get(), "Time remaining: n/a");
    EXPECT_EQ(results(), QStringList({"Aborted", "Aborted"}));
}

TEST_F(StubbornTool, IsNotEndedByForceBeforeTenSecondsHaveGoneBy) {
    cancelAfter(1000);
    cancelAfter(10'900);
    endToolAfter(12'000);
    runQueue();
    EXPECT_EQ(questions(), QStringList());
    EXPECT_FALSE(endedByForce());
}

TEST_F(StubbornTool, IsEndedByForceIfTheUserWantsThatAfterTenSeconds) {
    cancelAfter(1000);
    cancelAfter(11'100);
    runQueue();
    EXPECT_EQ(questions(), QStringList(kEndByForce));
    EXPECT_EQ(ports.dialogs.lastQuestion.title, program.shared().title);
    EXPECT_EQ(jobCommands().size(), 1);
    EXPECT_TRUE(ports.launcher.children[2]->endedByForce);
    EXPECT_EQ(results(), QStringList({"Aborted", "Aborted"}));
}

TEST_F(StubbornTool, IsWaitedForOnIfTheUserSaysNo) {
    ports.dialogs.questionAnswer = false;
    cancelAfter(1000);
    cancelAfter(11'100);
    endToolAfter(20'000);
    runQueue();
    EXPECT_EQ(questions().size(), 1);
    EXPECT_FALSE(ports.launcher.children[2]->endedByForce);
    EXPECT_GE(ports.clock.now, 20'000);
}

TEST_F(StubbornTool, ThatCannotEvenBeToldIsEndedByForceToo) {
    ChildScript unreachable = endless();
    unreachable.hearsInterrupt = false;
    answerWith("inject", unreachable);
    cancelAfter(1000);
    cancelAfter(11'100);
    runQueue();
    EXPECT_EQ(questions(), QStringList(kEndByForce));
    EXPECT_EQ(results(), QStringList({"Aborted", "Aborted"}));
}

TEST_F(StubbornTool, TheTenSecondsBeginAnewWithEachRun) {
    cancelAfter(1000);
    endToolAfter(20'000);
    runQueue();
    ChildScript deaf = endless();
    deaf.heedsInterrupt = false;
    answerWith("inject", deaf);
    cancelAfter(1000);
    cancelAfter(2000);
    endToolAfter(5000);
    runQueue();
    EXPECT_EQ(questions(), QStringList());
}

/// The channel alone, beside a tool that does not heed its interrupt.
class ToolToldToStop : public ProgramTest {
protected:
    void runAndInterrupt(const ChildScript& tool) {
        ports.launcher.on("first", tool);
        ports.pump.after(100, [this] { StdIO.interrupt(); });
        channel.Tarn_Command("first");
    }

    Shared shared{ports.ports()};
    cStdIO StdIO{shared};
    OutputInterpreter interpreter{shared};
    ToolChannel channel{shared, StdIO, interpreter};
};

TEST_F(ToolToldToStop, TheCommandThatRunsIsNamedAlsoIfAnotherRanWhileItWaited) {
    runAndInterrupt({.output = {{"1%", 0}}, .endsAtMs = 5000, .heedsInterrupt = false});
    QStringList named;
    ports.launcher.script = [&](const QString& line) {
        named += line.section(' ', -1) + " runs as " + shared.frmMain.txtCommand.text.get();
        return ChildScript{};
    };
    ports.pump.after(200, [this] { channel.Tarn_Execute("third"); });
    channel.Tarn_Execute("second");
    EXPECT_EQ(named, QStringList({"third runs as third", "second runs as second"}));
}

TEST_F(ToolToldToStop, NoMoreIsReadThanThePipeHeldWhenItWasTold) {
    constexpr qsizetype kPipe = 65536;
    const QByteArray flood(10'000'000, '.');
    qsizetype read = 0, readBefore = 0;
    StdIO.GotData = [&](const QString& chunk) { read += chunk.size(); };
    ports.launcher.on("flood", {.output = {{flood}}, .endsAtMs = 100'000, .heedsInterrupt = false});
    ports.pump.after(200, [&] {
        StdIO.interrupt();
        readBefore = read;
    });
    StdIO.ExecuteCommand("flood");
    EXPECT_GT(read, readBefore);
    EXPECT_LE(read - readBefore, kPipe + 4096);
}

TEST_F(ToolToldToStop, ALineThatNobodyCouldReadIsNotToldAfterALaterCommand) {
    // A run that breaks off leaves no time to tell anything.
    shared.blnInstallRunning = true;
    ports.launcher.on("broken", {.output = {{"1%, remaining\r", 0}}, .endsAtMs = 1000});
    ports.pump.after(500, [] { throw std::runtime_error("broken off"); });
    EXPECT_THROW(channel.Tarn_Execute("broken"), std::runtime_error);
    shared.blnInstallRunning = false;
    channel.Tarn_Execute("harmless");
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList());
}

/// A console that takes its time to go off.
class SlowPowerOff : public ProgramTest {
protected:
    SlowPowerOff() {
        start();
        store("ClosePS2", "1");
        ports.launcher.on("poweroff", {.output = {{"Going down\r\n"}}, .endsAtMs = 60'000});
    }
    void expectEndedAtOnce() {
        EXPECT_TRUE(ports.pump.ended());
        EXPECT_LT(ports.clock.now, 5000);
        EXPECT_FALSE(ports.tray.shown);
        EXPECT_EQ(commands(), QStringList("poweroff 192.168.0.10"));
    }
};

TEST_F(SlowPowerOff, ASecondClickOnExitEndsTheProgramAtOnce) {
    ports.pump.after(2000, [this] { ui::click(frmMain.cmdExit); });
    ui::click(frmMain.cmdExit);
    expectEndedAtOnce();
}

TEST_F(SlowPowerOff, SoDoesTheCloseBoxPressedTwice) {
    ports.pump.after(2000, [this] { ui::close(frmMain); });
    ui::close(frmMain);
    expectEndedAtOnce();
}

} // namespace
} // namespace tarnwell::test

#include "support/fake_ports.h"
#include "support/gtest_qt.h"
#include "tool/std_io.h"
#include "tool/stop_tool.h"

#include <gtest/gtest.h>
#include <utility>

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

struct StdIOTest : testing::Test {
    StdIOTest() {
        StdIO.GotData = [this](const QString& data) { chunks += data; };
        StdIO.Complete = [this] { events += "Complete"; };
        StdIO.CancelSuccess = [this] { events += "CancelSuccess"; };
        StdIO.CancelFail = [this] { events += "CancelFail"; };
        StdIO.Error = [this](int number, const QString& text) {
            events += QString::number(number) + ' ' + text;
        };
    }

    void program(const ChildScript& script) {
        ports.launcher.script = [script](const QString&) { return script; };
    }

    FakePorts ports;
    Shared shared{ports.ports()};
    cStdIO StdIO{shared};
    QStringList chunks, events;
};

} // namespace

TEST_F(StdIOTest, AProgramThatPrintsNothingCompletesWithAnEmptyResult) {
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "");
    EXPECT_TRUE(chunks.isEmpty());
    EXPECT_EQ(events, QStringList("Complete"));
    EXPECT_TRUE(StdIO.Ready());
}

TEST_F(StdIOTest, ReturnsAllThatWasPrintedAndHandsOnEachChunk) {
    program({.output = {{"one", 10}, {"two", 100}}, .endsAtMs = 200});
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "onetwo");
    EXPECT_EQ(chunks, QStringList({"one", "two"}));
}

TEST_F(StdIOTest, OutputThatWaitsWhenTheProgramHasGoneArrivesAllTheSame) {
    program({.output = {{QByteArray(10000, 'x'), 0}}, .endsAtMs = 20});
    EXPECT_EQ(StdIO.ExecuteCommand("tool").size(), 10000);
    ASSERT_EQ(chunks.size(), 3);
    EXPECT_EQ(chunks[0].size(), 4096);
    EXPECT_EQ(chunks[1].size(), 4096);
    EXPECT_EQ(chunks[2].size(), 10000 - 2 * 4096);
}

TEST_F(StdIOTest, ReadsOnePieceAPassWhileTheProgramRuns) {
    program({.output = {{QByteArray(qsizetype{3} * 4096, 'x'), 0}}, .endsAtMs = 1000});
    std::vector<qint64> times;
    StdIO.GotData = [&](const QString&) { times.push_back(ports.clock.now); };
    StdIO.ExecuteCommand("tool");
    ASSERT_EQ(times.size(), 3u);
    EXPECT_GE(times[1] - times[0], 30);
    EXPECT_GE(times[2] - times[1], 30);
}

TEST_F(StdIOTest, ALineCanBeSplitBetweenTwoReads) {
    program({.output = {{QByteArray(4090, 'x') + "12% done\r", 0}}});
    StdIO.ExecuteCommand("tool");
    ASSERT_EQ(chunks.size(), 2);
    EXPECT_EQ(chunks[1], "ne\r");
}

TEST_F(StdIOTest, ACharacterThatIsSplitBetweenTwoReadsSurvives) {
    const QString text = QString::fromUtf8("Pok\xc3\xa9mon");
    const QByteArray bytes = text.toLocal8Bit();
    program({.output = {{bytes.first(4), 0}, {bytes.sliced(4), 100}}, .endsAtMs = 200});
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), text);
}

TEST_F(StdIOTest, BytesThatAreNoTextDoNoHarm) {
    program({.output = {{QByteArray("\xff\xfe\x00\x80%", 5), 0}}});
    EXPECT_TRUE(StdIO.ExecuteCommand("tool").endsWith('%'));
}

TEST_F(StdIOTest, ACommandReplacesTheStoredOneForGood) {
    StdIO.setCommandLine("first");
    StdIO.ExecuteCommand("");
    StdIO.ExecuteCommand("second");
    StdIO.ExecuteCommand("");
    EXPECT_EQ(ports.launcher.commandLines(), QStringList({"first", "second", "second"}));
}

TEST_F(StdIOTest, WithNothingToRunRaisesAnError) {
    EXPECT_EQ(StdIO.ExecuteCommand(""), "");
    EXPECT_EQ(events, QStringList("401 Command Line empty."));
    EXPECT_TRUE(StdIO.Ready());
}

TEST_F(StdIOTest, AProgramThatCannotBeStartedRaisesAnError) {
    ports.launcher.script = [](const QString&) { return std::nullopt; };
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "");
    EXPECT_EQ(events, QStringList("406 CreateProcess failed."));
    EXPECT_TRUE(StdIO.Ready());
}

TEST_F(StdIOTest, WhyAProgramCannotBeStartedIsKnownUntilOneCan) {
    EXPECT_EQ(StdIO.whyNotStarted(), "");
    ports.launcher.script = [](const QString&) { return std::nullopt; };
    ports.launcher.whyNot = "Exec format error.";
    StdIO.ExecuteCommand("tool");
    EXPECT_EQ(StdIO.whyNotStarted(), "Exec format error.");
    program({});
    StdIO.ExecuteCommand("tool");
    EXPECT_EQ(StdIO.whyNotStarted(), "");
}

TEST_F(StdIOTest, ASecondCommandDuringARunIsRefusedAndTheFirstGoesOn) {
    program({.output = {{"answer", 100}}, .endsAtMs = 200});
    QString second = "not called";
    ports.pump.after(50, [&] {
        EXPECT_FALSE(StdIO.Ready());
        second = StdIO.ExecuteCommand("other");
        EXPECT_FALSE(StdIO.Ready());
        StdIO.setCommandLine("other");
    });
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "answer");
    EXPECT_EQ(second, "");
    EXPECT_EQ(StdIO.CommandLine(), "tool");
    EXPECT_EQ(events, QStringList({"400 Not ready to process another command.",
                                   "402 Not ready to change settings.", "Complete"}));
}

TEST_F(StdIOTest, CancelEndsTheRunAtTheNextPassAndKeepsWhatWasRead) {
    program({.output = {{"early", 0}, {"late", 500}}, .endsAtMs = 100000});
    ports.pump.after(100, [&] { StdIO.Cancel(); });
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "early");
    EXPECT_LT(ports.clock.now, 2000);
    EXPECT_EQ(events, QStringList("CancelSuccess"));
    EXPECT_EQ(ports.processes.closeRequests.size(), 1u);
}

TEST_F(StdIOTest, CancelAfterTheLastChunkStillCountsAsOne) {
    program({.output = {{"last", 0}}, .endsAtMs = 20});
    StdIO.GotData = [this](const QString&) { ports.pump.queue([this] { StdIO.Cancel(); }); };
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "last");
    EXPECT_EQ(events, QStringList("CancelSuccess"));
}

TEST_F(StdIOTest, ACancelledRunTakesOneMoreChunkOfWhatWaits) {
    program({.output = {{QByteArray(20000, 'x'), 0}}, .endsAtMs = 100000});
    StdIO.GotData = [&, first = true](const QString&) mutable {
        if (std::exchange(first, false))
            StdIO.Cancel();
    };
    EXPECT_EQ(StdIO.ExecuteCommand("tool").size(), 2 * 4096);
}

TEST_F(StdIOTest, ARunThatIsCancelledAtOnceTakesOneChunkOfWhatWaits) {
    program({.output = {{QByteArray(20000, 'x'), 0}}, .endsAtMs = 100000});
    ports.pump.queue([&] { StdIO.Cancel(); });
    EXPECT_EQ(StdIO.ExecuteCommand("tool").size(), 4096);
}

TEST_F(StdIOTest, CancelEndsTheReadingOfWhatWaitsWhenTheProgramHasGone) {
    program({.output = {{QByteArray(20000, 'x'), 0}}, .endsAtMs = 20});
    int reads = 0;
    StdIO.GotData = [&](const QString&) {
        if (++reads == 2)
            ports.pump.queue([&] { StdIO.Cancel(); });
    };
    EXPECT_EQ(StdIO.ExecuteCommand("tool").size(), 2 * 4096);
    EXPECT_EQ(events, QStringList("CancelSuccess"));
}

TEST_F(StdIOTest, AfterACancelledRunTheNextRunsToItsEnd) {
    program({.endsAtMs = 100000});
    ports.pump.after(100, [&] { StdIO.Cancel(); });
    StdIO.ExecuteCommand("tool");
    program({.output = {{"early", 0}, {"late", 500}}, .endsAtMs = 600});
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "earlylate");
    EXPECT_EQ(events, QStringList({"CancelSuccess", "Complete"}));
}

TEST_F(StdIOTest, AfterAnInterruptedRunTheNextRunsToItsEndAndCanBeInterrupted) {
    program({.endsAtMs = 100000});
    ports.pump.after(100, [&] { ShowStopPrompt(StdIO); });
    StdIO.ExecuteCommand("tool");
    program({.output = {{"answer", 500}}, .endsAtMs = 600});
    EXPECT_EQ(StdIO.ExecuteCommand("tool"), "answer");
    program({.endsAtMs = 100000});
    ports.pump.after(100, [&] { ShowStopPrompt(StdIO); });
    StdIO.ExecuteCommand("tool");
    EXPECT_EQ(ports.launcher.children[2]->interrupts, 1);
}

TEST_F(StdIOTest, ACancelledProgramThatCannotBeAskedToCloseIsLeftAlone) {
    program({.endsAtMs = 100000});
    ports.processes.canBeClosed = false;
    ports.pump.after(100, [&] { StdIO.Cancel(); });
    StdIO.ExecuteCommand("tool");
    EXPECT_EQ(events, QStringList("CancelFail"));
    EXPECT_TRUE(StdIO.Ready());
}

TEST_F(StdIOTest, CancelWithNothingRunningRaisesAnError) {
    StdIO.Cancel();
    EXPECT_EQ(events, QStringList("402 Not processing a command to cancel."));
}

TEST_F(StdIOTest, AnInterruptEndsTheRunAtOnceWhileTheProgramLivesOn) {
    program({.endsAtMs = 100000, .farewell = "Interrupted.\r\n", .farewellTakesMs = 5000});
    ports.pump.after(100, [&] { ShowStopPrompt(StdIO); });
    const qint64 start = ports.clock.now;
    StdIO.ExecuteCommand("tool");
    EXPECT_LE(ports.clock.now - start, 160);
    EXPECT_TRUE(StdIO.stoppedToolLives());
    EXPECT_EQ(events, QStringList("Complete"));
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 1);

    WaitForStoppedTool(StdIO, ports.pump);
    EXPECT_FALSE(StdIO.stoppedToolLives());
    EXPECT_GE(ports.clock.now - start, 5000);
}

TEST_F(StdIOTest, ASecondInterruptDoesNothing) {
    program({.endsAtMs = 100000, .heedsInterrupt = true, .farewellTakesMs = 1000});
    ports.pump.after(100, [&] {
        ShowStopPrompt(StdIO);
        ShowStopPrompt(StdIO);
    });
    StdIO.ExecuteCommand("tool");
    ShowStopPrompt(StdIO);
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 1);
}

TEST_F(StdIOTest, AnInterruptThatCannotBeDeliveredLeavesTheRunAndMayBeTriedAgain) {
    program({.endsAtMs = 2000, .hearsInterrupt = false});
    ports.pump.after(100, [&] { ShowStopPrompt(StdIO); });
    ports.pump.after(500, [&] {
        ports.launcher.children[0]->script.hearsInterrupt = true;
        ShowStopPrompt(StdIO);
    });
    const qint64 start = ports.clock.now;
    StdIO.ExecuteCommand("tool");
    EXPECT_GE(ports.clock.now - start, 500);
    EXPECT_LT(ports.clock.now - start, 600);
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 2);
}

TEST_F(StdIOTest, ARunThatBreaksOffFreesTheChannelAndLeavesTheProgramAtWork) {
    program({.output = {{"text", 100}}, .endsAtMs = 2000});
    StdIO.GotData = [](const QString&) { throw std::runtime_error("out of memory"); };
    EXPECT_THROW(StdIO.ExecuteCommand("tool"), std::runtime_error);
    EXPECT_TRUE(StdIO.Ready());
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 0);
    EXPECT_TRUE(StdIO.stoppedToolLives()) << "no other is started beside it";
}

TEST_F(StdIOTest, AnInterruptWithNothingRunningDoesNothing) {
    ShowStopPrompt(StdIO);
    EXPECT_FALSE(StdIO.stoppedToolLives());
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(StdIOTest, TheEndOfAQueuedRunMarksTheJobAsDone) {
    shared.blnQueueRunning = true;
    StdIO.ExecuteCommand("tool");
    EXPECT_TRUE(shared.blnJobDone);
}

TEST_F(StdIOTest, TheEndOfAnyOtherRunDoesNot) {
    StdIO.ExecuteCommand("tool");
    EXPECT_FALSE(shared.blnJobDone);
}

TEST_F(StdIOTest, WritesALineToTheRunningProgram) {
    program({.endsAtMs = 200});
    qint32 written = 0;
    ports.pump.after(50, [&] { written = StdIO.WriteData("yes"); });
    StdIO.ExecuteCommand("tool");
    EXPECT_EQ(written, 3);
    EXPECT_EQ(ports.launcher.children[0]->written, "yes\r\n");
    EXPECT_EQ(StdIO.WriteData("nobody there"), -1);
}

TEST_F(StdIOTest, AnEndOfTheProgramDuringARunLeavesTheToolAlone) {
    program({.output = {{"late", 500}}, .endsAtMs = 100000});
    ports.pump.after(100, [&] { ports.pump.end(); });
    EXPECT_THROW(StdIO.ExecuteCommand("tool"), ProgramEnded);
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 0);
    EXPECT_TRUE(ports.processes.closeRequests.empty());
    EXPECT_TRUE(events.isEmpty());
}

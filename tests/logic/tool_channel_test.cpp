#include "support/program_test.h"
#include "tool/tool_channel.h"

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

const QString kUnknownError =
    "An unknown error has occurred. Please try restarting the program and make sure to "
    "close tarnwell.exe by pressing CTRL+ALT+DEL.";

struct ToolChannelTest : ProgramTest {
    Shared shared{ports.ports()};
    cStdIO StdIO{shared};
    OutputInterpreter interpreter{shared};
    ToolChannel channel{shared, StdIO, interpreter};
    ui::FrmMain& frmMain = shared.frmMain;
};

} // namespace

TEST_F(ToolChannelTest, ACommandGoesBehindTheUnquotedPathOfTheTool) {
    ports.folders.folder = path("a folder with blanks");
    ports.launcher.on("query", QByteArray("answer"));
    EXPECT_EQ(channel.Tarn_Command("query"), "answer");
    EXPECT_EQ(ports.launcher.commandLines(),
              QStringList(ports.folders.folder + QDir::separator() + "tarnwell.exe query"));
    EXPECT_EQ(frmMain.txtCommand.text.get(), "query");
}

TEST_F(ToolChannelTest, AnAnswerReturnsAtOnce) {
    ports.launcher.on("query", QByteArray("answer"));
    const qint64 start = ports.clock.now;
    channel.Tarn_Command("query");
    EXPECT_LT(ports.clock.now - start, 100);
    EXPECT_EQ(ports.launcher.children.size(), 1u);
}

TEST_F(ToolChannelTest, ASilentToolIsRunFourTimesTwoSecondsApartAndThenTheUserIsTold) {
    const qint64 start = ports.clock.now;
    EXPECT_EQ(channel.Tarn_Command("query"), "");
    EXPECT_EQ(ports.launcher.children.size(), 4u);
    EXPECT_GE(ports.clock.now - start, 6000);
    EXPECT_LT(ports.clock.now - start, 7000);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError));
    EXPECT_EQ(ports.dialogs.messages[0].icon, MessageIcon::Exclamation);
}

TEST_F(ToolChannelTest, AToolThatSpeaksOnlyTheFourthTimeCountsAsFailed) {
    ports.launcher.script = [this](const QString&) {
        return ports.launcher.children.size() < 3 ? ChildScript{} : ChildScript{.output = {{"late answer"}}};
    };
    EXPECT_EQ(channel.Tarn_Command("query"), "");
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError));
    EXPECT_EQ(frmMain.txtOutput.text.get(), "late answer");
}

TEST_F(ToolChannelTest, AToolThatSpeaksTheSecondTimeIsHeard) {
    ports.launcher.script = [this](const QString&) {
        return ports.launcher.children.empty() ? ChildScript{} : ChildScript{.output = {{"answer"}}};
    };
    EXPECT_EQ(channel.Tarn_Command("query"), "answer");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ToolChannelTest, AToolThatCannotBeStartedIsTriedFourTimes) {
    int starts = 0;
    ports.launcher.script = [&](const QString&) {
        ++starts;
        return std::nullopt;
    };
    EXPECT_EQ(channel.Tarn_Command("query"), "");
    EXPECT_EQ(starts, 4);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError));
}

TEST_F(ToolChannelTest, WhyTheToolCannotBeStartedStandsInTheOutputBoxUntilItCan) {
    const auto usual = ports.launcher.script;
    ports.launcher.script = [](const QString&) { return std::nullopt; };
    ports.launcher.whyNot = "The requested operation requires elevation.";
    channel.Tarn_Execute("delete hdd1: Game");
    EXPECT_EQ(frmMain.txtOutput.text.get(), "The requested operation requires elevation.");
    frmMain.txtOutput.text = "";
    ports.dialogs.whileOpen = [&] {
        EXPECT_EQ(frmMain.txtOutput.text.get(), "The requested operation requires elevation.");
    };
    channel.Tarn_Command("query");
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError));
    ports.launcher.script = usual;
    channel.Tarn_Execute("delete hdd1: Game");
    EXPECT_EQ(frmMain.txtOutput.text.get(), "");
}

TEST_F(ToolChannelTest, AcrossMidnightTheWaitLastsUntilOutputComes) {
    ports.clock.secondsAtZero = 24 * 60 * 60 - 2; // the clock starts at 1 s: one second to midnight
    ports.pump.after(60 * 1000, [this] { ports.launcher.on("query", QByteArray("never asked")); });
    ports.launcher.on("other", QByteArray("output of another run"));
    ports.pump.after(3000, [this] { channel.Tarn_Command("other"); });
    const qint64 start = ports.clock.now;
    EXPECT_EQ(channel.Tarn_Command("query"), "");
    EXPECT_GE(ports.clock.now - start, 3000) << "two seconds were not enough";
    EXPECT_EQ(ports.launcher.children.size(), 2u);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ToolChannelTest, AcrossMidnightTheWaitLastsUntilTheClockHasCaughtUp) {
    constexpr int kDay = 24 * 60 * 60 * 1000;
    ports.clock.secondsAtZero = 24 * 60 * 60 - 11; // the clock starts at 1 s: ten seconds to midnight
    ports.launcher.script = [this](const QString&) {
        return ports.launcher.children.empty() ? ChildScript{} : ChildScript{.output = {{"answer"}}};
    };
    // Somebody else's work keeps the program busy over midnight, and then for most of the day.
    ports.pump.after(1000, [this] { ports.clock.now += 20'000; });
    ports.pump.after(30'000, [this] { ports.clock.now += kDay - 40'000; });
    const qint64 start = ports.clock.now;
    EXPECT_EQ(channel.Tarn_Command("query"), "answer");
    EXPECT_GE(ports.clock.now - start, kDay + 2000);
    EXPECT_LT(ports.clock.now - start, kDay + 2200);
}

TEST_F(ToolChannelTest, ABusyChannelIsWaitedForThroughTheAttempts) {
    ports.launcher.on("inject", ChildScript{.output = {{"1%\r", 2500}}, .endsAtMs = 3000});
    ports.launcher.on("query", QByteArray("answer"));
    QString answer;
    ports.pump.after(50, [&] {
        EXPECT_FALSE(StdIO.Ready());
        answer = channel.Tarn_Command("query");
    });
    channel.Tarn_Execute("inject");
    // The inner call runs on top of the outer one, which cannot end below it: it gives up in the end.
    EXPECT_EQ(answer, "");
    EXPECT_EQ(ports.launcher.children.size(), 1u);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError));
}

TEST_F(ToolChannelTest, ExecuteRunsASilentToolOnce) {
    channel.Tarn_Execute("delete hdd1: Game");
    EXPECT_EQ(ports.launcher.children.size(), 1u);
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(frmMain.txtCommand.text.get(), "delete hdd1: Game");
}

TEST_F(ToolChannelTest, ExecuteOnABusyChannelRunsNothing) {
    ports.launcher.on("first", ChildScript{.endsAtMs = 500});
    ports.pump.after(50, [&] { channel.Tarn_Execute("second"); });
    channel.Tarn_Execute("first");
    EXPECT_EQ(ports.launcher.children.size(), 1u);
    ASSERT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(lastMessage(), "Unexpected error.");
    EXPECT_EQ(ports.dialogs.messages[0].icon, MessageIcon::Stop);
    EXPECT_EQ(frmMain.txtCommand.text.get(), "first");
}

TEST_F(ToolChannelTest, TheOutputBoxHoldsTheLatestChunkWithoutItsLineEnd) {
    QStringList shown;
    frmMain.txtOutput.text.changed.connect([&] { shown += frmMain.txtOutput.text.get(); });
    ports.launcher.on(
        "query", ChildScript{.output = {{"one\r\n", 0}, {"two\n", 100}, {"three\r", 200}}, .endsAtMs = 300});
    channel.Tarn_Command("query");
    EXPECT_EQ(shown, QStringList({"one", "two\n", "three\r"}));
}

TEST_F(ToolChannelTest, TheOutputBoxIsEmptiedBeforeEachRun) {
    for (const bool mustAnswer : {true, false}) {
        frmMain.txtOutput.text = QString("of the run before");
        QString atStart = "not started";
        ports.launcher.script = [&](const QString&) {
            atStart = frmMain.txtOutput.text;
            return ChildScript{.output = {{"answer"}}};
        };
        if (mustAnswer)
            channel.Tarn_Command("query");
        else
            channel.Tarn_Execute("delete hdd1: Game");
        EXPECT_EQ(atStart, "");
    }
}

TEST_F(ToolChannelTest, ASilentRunLeavesTheOutputBoxEmpty) {
    frmMain.txtOutput.text = QString("of the run before");
    channel.Tarn_Execute("delete hdd1: Game");
    EXPECT_EQ(frmMain.txtOutput.text.get(), "");
}

TEST_F(ToolChannelTest, AChunkIsShownThenTimedThenInterpreted) {
    shared.blnInstallRunning = true;
    shared.lJobStartTick = ports.clock.tickCount() - 60'000;
    QStringList steps;
    frmMain.txtOutput.text.changed.connect([&] { steps += frmMain.txtOutput.text.get(); });
    shared.frmStatus->lblCurrentElapsed.caption.changed.connect([&] { steps += "clock"; });
    shared.frmStatus->picCurrent.tag.changed.connect([&] { steps += "bar"; });
    ports.launcher.on("inject", QByteArray("5%\r"));
    channel.Tarn_Execute("inject");
    EXPECT_EQ(steps, QStringList({"5%\r", "clock", "bar"}));
}

TEST_F(ToolChannelTest, AChunkOfALineEndAloneEmptiesTheOutputBox) {
    ports.launcher.on("query", ChildScript{.output = {{"text", 0}, {"\r\n", 100}}, .endsAtMs = 300});
    channel.Tarn_Command("query");
    EXPECT_EQ(frmMain.txtOutput.text.get(), "");
}

TEST_F(ToolChannelTest, DuringAnInstallBothElapsedTimesAreTheSame) {
    shared.blnInstallRunning = true;
    shared.lJobStartTick = ports.clock.tickCount();
    shared.lQueueStartTick = 1;
    ports.launcher.on("inject", ChildScript{.output = {{"5%\r", 61000}}, .endsAtMs = 61000});
    channel.Tarn_Command("inject");
    EXPECT_EQ(shared.frmStatus->lblCurrentElapsed.caption.get(), "00:01:01");
    EXPECT_EQ(shared.frmStatus->lblOverallElapsed.caption.get(), "00:01:01");
}

TEST_F(ToolChannelTest, DuringAQueueTheOverallTimeCountsFromItsStart) {
    shared.blnQueueRunning = true;
    shared.lQueueStartTick = ports.clock.tickCount();
    ports.clock.now += 3'600'000;
    shared.lJobStartTick = ports.clock.tickCount();
    ports.launcher.on("inject", ChildScript{.output = {{"5%\r", 2000}}, .endsAtMs = 2000});
    channel.Tarn_Command("inject");
    EXPECT_EQ(shared.frmStatus->lblCurrentElapsed.caption.get(), "00:00:02");
    EXPECT_EQ(shared.frmStatus->lblOverallElapsed.caption.get(), "01:00:02");
}

TEST_F(ToolChannelTest, TheLastWordOfAJobStillMovesTheClocks) {
    shared.blnQueueRunning = true;
    shared.lJobStartTick = shared.lQueueStartTick = ports.clock.tickCount();
    ports.launcher.on("inject", ChildScript{.output = {{"100%\r", 61000}}, .endsAtMs = 61000});
    channel.Tarn_Command("inject");
    EXPECT_EQ(shared.frmStatus->lblCurrentElapsed.caption.get(), "00:01:01");
    EXPECT_EQ(shared.frmStatus->lblOverallElapsed.caption.get(), "00:01:01");
}

TEST_F(ToolChannelTest, TheClocksMoveBeforeTheOutputIsUnderstood) {
    shared.blnQueueRunning = true;
    shared.lJobStartTick = shared.lQueueStartTick = ports.clock.tickCount();
    ports.launcher.on("inject", ChildScript{.output = {{"50%\r", 61000}}, .endsAtMs = 61000});
    QStringList seen;
    ui::FrmStatus& status = shared.frmStatus.untouched();
    status.picCurrent.drawing.changed.connect([&] {
        seen = {status.lblCurrentElapsed.caption, status.lblOverallElapsed.caption};
    });
    channel.Tarn_Command("inject");
    EXPECT_EQ(seen, (QStringList{"00:01:01", "00:01:01"}));
}

TEST_F(ToolChannelTest, ACommandInTheMiddleOfReadingAnAnswerDoesNotUnsayTheAnswer) {
    shared.blnInstallRunning = true;
    shared.frmStatus->picCurrent.tag.changed.connect([this] { channel.Tarn_Command("query"); });
    ports.launcher.on("inject", QByteArray("5%\r"));
    EXPECT_EQ(channel.Tarn_Command("inject"), "5%\r");
    EXPECT_EQ(ports.launcher.children.size(), 1u) << "a tool that has spoken is not run once more";
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kUnknownError)) << "of the command that came between";
}

TEST_F(ToolChannelTest, ACommandIsShownWhileItWaitsForTheToolThatWasStopped) {
    ports.launcher.on("first", ChildScript{.endsAtMs = 100'000, .farewellTakesMs = 5000});
    ports.pump.after(100, [this] { StdIO.interrupt(); });
    channel.Tarn_Execute("first");
    QString shown, output;
    ports.pump.after(1000, [&] {
        shown = frmMain.txtCommand.text;
        output = frmMain.txtOutput.text;
    });
    channel.Tarn_Execute("second");
    EXPECT_EQ(shown, "second");
    EXPECT_EQ(output, "tarnwell.exe was told to stop and has not ended yet. This command waits for it.");
    EXPECT_EQ(frmMain.txtOutput.text.get(), "");
    EXPECT_EQ(ports.launcher.children.size(), 2u);
}

TEST_F(ToolChannelTest, TheChunksOfAGameListAreWithheld) {
    shared.blnReadTOC = true;
    answerTocWith(kTwoGames);
    const QString answer = channel.Tarn_Command("tarn_toc hdd1:");
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    interpreter.ParseToolOutput(answer);
    EXPECT_EQ(frmMain.lstHD.count(), 2);
}

TEST_F(ToolChannelTest, AnUnreadableProgressLineIsToldOnceWhenTheRunHasEnded) {
    shared.blnInstallRunning = true;
    ports.launcher.on(
        "inject",
        ChildScript{.output = {{"5%, 1 min remaining\r", 0}, {"6%, 1 min remaining\r", 100}, {"50%\r", 200}},
                    .endsAtMs = 300});
    bool toldDuringTheRun = false;
    ports.pump.after(150, [&] { toldDuringTheRun = !ports.dialogs.messages.empty(); });
    channel.Tarn_Command("inject");
    EXPECT_FALSE(toldDuringTheRun);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(shared.frmStatus->picCurrent.tag.get(), "50");
}

TEST_F(ToolChannelTest, AMissingToolIsTold) {
    EXPECT_TRUE(requireTool(shared));
    removeTool();
    EXPECT_FALSE(requireTool(shared));
    EXPECT_EQ(lastMessage(),
              "tarnwell.exe was not found. Place it in the same directory as this program and try again.");
}

TEST_F(ToolChannelTest, OfManyQuestionsNobodyIsToldThatOneWasNotAnswered) {
    EXPECT_EQ(channel.Tarn_Question("cdvd_info2 a"), "");
    EXPECT_EQ(ports.launcher.children.size(), 4u);
    EXPECT_TRUE(ports.dialogs.messages.empty());
    ports.launcher.on("cdvd_info2 b", QByteArray("answer"));
    EXPECT_EQ(channel.Tarn_Question("cdvd_info2 b"), "answer");
}

TEST_F(ToolChannelTest, AQuestionThatIsDroppedIsInterruptedAndNotAskedAgain) {
    ports.launcher.on("cdvd_info2", ChildScript{.endsAtMs = 60'000, .farewell = {}});
    ports.pump.after(100, [this] { channel.dropQuestion(); });
    const qint64 start = ports.clock.now;
    EXPECT_EQ(channel.Tarn_Question("cdvd_info2 a"), "");
    EXPECT_LT(ports.clock.now - start, 500);
    ASSERT_EQ(ports.launcher.children.size(), 1u);
    EXPECT_EQ(ports.launcher.children[0]->interrupts, 1);
}

TEST_F(ToolChannelTest, AnInterruptThatIsRefusedCanBeTriedAgain) {
    ports.launcher.on("cdvd_info2", ChildScript{.endsAtMs = 60'000, .hearsInterrupt = false});
    ports.pump.after(100, [this] { channel.dropQuestion(); });
    ports.pump.after(1000, [this] {
        ports.launcher.children[0]->script.hearsInterrupt = true;
        channel.dropQuestion();
    });
    const qint64 start = ports.clock.now;
    channel.Tarn_Question("cdvd_info2 a");
    EXPECT_LT(ports.clock.now - start, 2000);
}

TEST_F(ToolChannelTest, DroppingAQuestionDisturbsNoOtherCommand) {
    ports.launcher.on("inject_dvd", ChildScript{.output = {{"1%\r\n"}}, .endsAtMs = 5000});
    ports.pump.after(100, [this] { channel.dropQuestion(); });
    channel.Tarn_Command("inject_dvd x");
    // Nor one that runs in the pause between two attempts at the question.
    ports.pump.after(500, [this] { channel.Tarn_Execute("initialize hdd1:"); });
    ports.launcher.on("initialize", ChildScript{.endsAtMs = 5000});
    ports.pump.after(1000, [this] { channel.dropQuestion(); });
    channel.Tarn_Question("cdvd_info2 a");
    for (const auto& child : ports.launcher.children)
        EXPECT_EQ(child->interrupts, 0) << child->commandLine.toStdString();
    EXPECT_EQ(ports.launcher.children.size(), 3u);
}

#include "interpreter_fixture.h"
#include "status/elapsed.h"

namespace tarnwell {
namespace {

class ProgressStage : public InterpreterTest {};

TEST_F(ProgressStage, ShowsTheToolsOwnWords) {
    runJob(1, 1);
    read("  45%, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(status.picCurrent.tag.get(), "45");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "45%");
    EXPECT_EQ(status.picCurrent.drawing.get().filledTo, 45);
    EXPECT_EQ(status.lblRemaining.caption.get(), "12 min remaining");
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: 3.50 MB/sec");
}

TEST_F(ProgressStage, KeepsTheLineEndOfTheSpeed) {
    runJob(1, 1);
    read("45%, 12 min remaining, 3.50 MB/sec\r");
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: 3.50 MB/sec\r");
}

TEST_F(ProgressStage, KeepsCommasInsideTheRemainingTime) {
    runJob(1, 1);
    read("45%, 1 h, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(status.lblRemaining.caption.get(), "1 h, 12 min remaining");
}

TEST_F(ProgressStage, EndsTheRemainingTimeAtTheCommaBeforeTheFirstSpeed) {
    runJob(1, 1);
    read("45%, 12 min remaining, 3.50 MB/sec, 4.00 MB/sec on average");
    EXPECT_EQ(status.lblRemaining.caption.get(), "12 min remaining");
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: 4.00 MB/sec on average");
}

TEST_F(ProgressStage, ShowsTheRemainingTimeBeforeTheSpeed) {
    runJob(1, 1);
    QString seen;
    status.lblSpeed.caption.changed.connect([&] { seen = status.lblRemaining.caption; });
    read("45%, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(seen, "12 min remaining");
    EXPECT_THROW(read("46%, 11 min remaining 4.00 MB/sec"), Fault);
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: 3.50 MB/sec");
}

TEST_F(ProgressStage, DrawsEachBarBeforeItsPercentStandsForOthersToRead) {
    runJob(1, 2);
    QStringList seen;
    outside.pump.whileWaiting = [&] {
        seen += QStringLiteral("%1, tag %2; %3, tag %4")
                    .arg(status.picCurrent.drawing.get().text, status.picCurrent.tag.get(),
                         status.picOverall.drawing.get().text, status.picOverall.tag.get());
    };
    read("44%");
    EXPECT_EQ(seen, (QStringList{"44%, tag ; , tag ", "44%, tag 44; 22%, tag "}));
    EXPECT_EQ(status.picOverall.tag.get(), "22");
}

TEST_F(ProgressStage, ShowsTheSpeedBeforeTheBarLetsEventsIn) {
    runJob(1, 1);
    QString seen;
    outside.pump.queue([&] { seen = status.lblSpeed.caption; });
    read("45%, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(seen, "Speed: 3.50 MB/sec");
}

TEST_F(ProgressStage, MovesOnlyTheBarForABareLine) {
    runJob(1, 1);
    read("45%");
    EXPECT_EQ(status.picCurrent.tag.get(), "45");
    EXPECT_EQ(status.lblRemaining.caption.get(), "Time Remaining: n/a");
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: n/a");
}

TEST_F(ProgressStage, MovesBothBarsTogetherForASingleJob) {
    runJob(1, 1);
    status.picOverall.tag = "7";
    read("45%, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(status.picOverall.drawing.get(), status.picCurrent.drawing.get());
    EXPECT_EQ(status.picOverall.tag.get(), "7");
    EXPECT_EQ(outside.tray.tip(), "45%\r\nSpeed: 3.50 MB/sec");
}

TEST_F(ProgressStage, ShowsAnInstallAloneWhateverTheListHolds) {
    addJobs(3);
    runInstall();
    read("45%");
    EXPECT_EQ(status.picOverall.drawing.get().text, "45%");
    EXPECT_EQ(outside.tray.tip(), "45%\r\nSpeed: n/a");
}

TEST_F(ProgressStage, CountsFinishedJobsInTheOverallBar) {
    runJob(2, 3);
    read("50%, 12 min remaining, 3.50 MB/sec");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "50%");
    EXPECT_EQ(status.picOverall.drawing.get().text, "49%");
    EXPECT_EQ(status.picOverall.tag.get(), "49");
    EXPECT_EQ(outside.tray.tip(), "Current: 50%\r\nOverall: 49%\r\nJob 2 of 3\r\nSpeed: 3.50 MB/sec");
}

TEST_F(ProgressStage, CountsJobsThatAnEarlierRunHasCompleted) {
    runJob(3, 4);
    read("0%");
    EXPECT_EQ(status.picOverall.tag.get(), "50");
}

TEST_F(ProgressStage, FillsTheOverallBarAtTheEndOfTheLastJob) {
    runJob(3, 3);
    read("100%");
    EXPECT_EQ(status.picOverall.drawing.get().text, "100%");
    EXPECT_EQ(status.picOverall.tag.get(), "100");
}

TEST_F(ProgressStage, LeavesTheOverallBarWhenThePercentagesAddUpToMore) {
    runJob(3, 3);
    read("99%");
    read("104%");
    EXPECT_EQ(status.picOverall.drawing.get().text, "100%");
    EXPECT_EQ(status.picOverall.tag.get(), "101");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "99%");
    EXPECT_EQ(status.picCurrent.tag.get(), "104");
}

TEST_F(ProgressStage, CompletesTheRowAtTheTextOneHundred) {
    runJob(2, 2);
    read("100%, 0 min remaining, 3.50 MB/sec\r50%\r");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_EQ(result(2), "Complete");
    EXPECT_TRUE(shared.blnJobDone);
    EXPECT_FALSE(shared.blnQueueRunning);
    EXPECT_FALSE(shared.blnInstallRunning);
    EXPECT_EQ(status.picCurrent.tag.get(), "100");
}

TEST_F(ProgressStage, CompletesAnInstallWithoutTouchingTheList) {
    addJobs(1);
    shared.intJobIndex = 1;
    runInstall();
    read("100%");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_TRUE(shared.blnJobDone);
    EXPECT_FALSE(shared.blnInstallRunning);
}

TEST_F(ProgressStage, TakesNoOtherPercentForTheEnd) {
    runJob(1, 1);
    for (const char* text : {"100.00%", "99.9%", "0100%"}) {
        read(text);
        EXPECT_TRUE(shared.blnQueueRunning) << text;
        EXPECT_EQ(result(1), "Pending") << text;
    }
    EXPECT_FALSE(shared.blnJobDone);
}

TEST_F(ProgressStage, RoundsOnlyTheBars) {
    runJob(1, 1);
    read("12.5%");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "12%");
    EXPECT_EQ(status.picCurrent.tag.get(), "12.5");
}

TEST_F(ProgressStage, PutsThePercentIntoTheCaptionOfAMinimisedWindow) {
    runJob(2, 3);
    shared.frmStatus->windowState = ui::WindowState::Minimised;
    read("50%");
    EXPECT_EQ(status.caption.get(), "50% - 49% - Job 2 / 3");
    shared.frmStatus->windowState = ui::WindowState::Normal;
    read("51%");
    EXPECT_EQ(status.caption.get(), " Status");
}

TEST_F(ProgressStage, PutsTheSpeedIntoTheCaptionOfAMinimisedWindowOfOneJob) {
    runJob(1, 1);
    shared.frmStatus->windowState = ui::WindowState::Minimised;
    read("50%, 1 min remaining, 3.50 MB/sec");
    EXPECT_EQ(status.caption.get(), "50% Complete [3.50 MB/sec");
}

TEST_F(ProgressStage, LetsEventsInWhileItDraws) {
    runJob(1, 1);
    bool served = false;
    outside.pump.queue([&] { served = true; });
    read("50%");
    EXPECT_TRUE(served);
}

TEST_F(ProgressStage, EndsWithTheProgram) {
    runJob(1, 2);
    outside.pump.queue([&] { outside.pump.end(); });
    EXPECT_THROW(read("50%\r60%\r"), ProgramEnded);
    EXPECT_TRUE(outside.tray.tips.isEmpty());
}

TEST_F(ProgressStage, RefusesARemainingTimeWithoutASpeed) {
    runJob(1, 1);
    EXPECT_THROW(read("45%, 12 min remaining"), Fault);
    EXPECT_THROW(read("45%, 12 min remaining 3 MB/sec"), Fault);
    EXPECT_EQ(status.lblRemaining.caption.get(), "Time Remaining: n/a");
}

TEST_F(ProgressStage, ShowsNothingDoneForAPercentThatIsNoNumber) {
    runJob(1, 1);
    read("about half%");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "0%");
    EXPECT_EQ(status.picCurrent.tag.get(), "about half");
}

TEST_F(ProgressStage, RefusesAPercentBeyondAllNumbers) {
    runJob(1, 1);
    EXPECT_THROW(read("99999999999%"), Fault);
}

TEST_F(ProgressStage, TakesAFailureMessageWithAPercentSignForProgress) {
    runJob(1, 1);
    read("Interrupted. at 40%");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_EQ(status.picCurrent.tag.get(), "Interrupted. at 40");
}

TEST_F(ProgressStage, WritesNowhereForARowThatIsNotThere) {
    for (const int index : {0, -1, 3, 32767}) {
        shared.intJobIndex = static_cast<qint16>(index);
        form.lstJob.clear();
        addJobs(2);
        shared.blnQueueRunning = true;
        read("100%");
        EXPECT_EQ(result(1), "Pending") << index;
        EXPECT_EQ(result(2), "Pending") << index;
        EXPECT_FALSE(shared.blnQueueRunning) << index;
    }
}

class Elapsed : public ::testing::Test {
protected:
    test::FakeClock clock;
};

TEST_F(Elapsed, ShowsHoursMinutesAndSeconds) {
    EXPECT_EQ(FormatElapsed(0, clock), "00:00:00");
    EXPECT_EQ(FormatElapsed(59'999, clock), "00:00:59");
    EXPECT_EQ(FormatElapsed(3'723'000, clock), "01:02:03");
    EXPECT_EQ(FormatElapsed(3'600'000 * 123, clock), "123:00:00");
}

TEST_F(Elapsed, ShowsNoTimeForAStartThatNeverWas) {
    clock.now = 7'654'321;
    EXPECT_EQ(FormatElapsed(clock.tickCount() - 0, clock), "00:00:00");
}

} // namespace
} // namespace tarnwell

#include "interpreter_fixture.h"

namespace tarnwell {
namespace {

class Interpreter : public InterpreterTest {};

TEST_F(Interpreter, ChangesNothingWhileNoFlagIsSet) {
    addJobs(2);
    shared.intJobIndex = 1;
    for (const char* text :
         {"45%, 12 min remaining, 3.50 MB/sec\r", "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n",
          "\tcd0:  4482 MB\r\n", "DVD 4193280KB \"NAME\" \"SLUS_1\"", "Interrupted.",
          "The device is not ready.", "A connection attempt failed", "type\r\nDVD 4193280KB", ""})
        read(text);

    EXPECT_EQ(form.cmbHD.listCount(), 0);
    EXPECT_EQ(form.cmbOptical.listCount(), 0);
    EXPECT_EQ(form.lstHD.count(), 0);
    EXPECT_EQ(form.txtGameName.text.get(), "");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_EQ(form.fmBrowse.caption.get(), "Browse, Backup, and Delete - 0 Games");
    EXPECT_FALSE(form.cmdInstall.enabled);
    EXPECT_FALSE(shared.blnJobDone);
    EXPECT_FALSE(status.loaded());
    EXPECT_TRUE(outside.tray.tips.isEmpty());
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(Interpreter, TakesTheConnectionPathAloneForATextWithAPercentSign) {
    runJob(1, 1);
    read("50%, existing connection was forcibly closed by the remote host");
    EXPECT_EQ(result(1), "Error (Could not connect to PS2, restart tarnd_svr.elf)");
    EXPECT_FALSE(status.loaded());
    EXPECT_FALSE(shared.blnJobDone);
    EXPECT_TRUE(shared.blnQueueRunning);
}

TEST_F(Interpreter, HeedsCaseInTheConnectionWords) {
    runJob(1, 1);
    read("Existing connection was forcibly closed by the remote host");
    EXPECT_THAT(result(1).toStdString(), ::testing::StartsWith("Error (Existing"));
}

TEST_F(Interpreter, IgnoresAnEmptyChunkDuringAJob) {
    runJob(1, 1);
    shared.blnReadTOC = true;
    form.lstHD.append({"Old game", {}, {}});
    read("");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_FALSE(shared.blnJobDone);
    EXPECT_EQ(form.lstHD.count(), 1);
    EXPECT_TRUE(shared.blnReadTOC);
}

TEST_F(Interpreter, EndsOnTheLastOfSeveralLinesInAChunk) {
    runJob(1, 1);
    read("10%, 3 min remaining, 1.00 MB/sec\r20%, 2 min remaining, 2.00 MB/sec\r"
         "30%, 1 min remaining, 3.00 MB/sec\r");
    EXPECT_EQ(status.picCurrent.tag.get(), "30");
    EXPECT_EQ(status.picCurrent.drawing.get().text, "30%");
    EXPECT_EQ(status.lblSpeed.caption.get(), "Speed: 3.00 MB/sec");
    EXPECT_EQ(status.lblRemaining.caption.get(), "1 min remaining");
}

TEST_F(Interpreter, DoesNotReadOnBehindTheLineThatCompletesTheJob) {
    runJob(1, 1);
    read("100%, 0 min remaining, 3.00 MB/sec\rInterrupted.\r50%\r");
    EXPECT_EQ(result(1), "Complete");
    EXPECT_EQ(status.picCurrent.tag.get(), "100");
    EXPECT_TRUE(shared.blnJobDone);
    EXPECT_FALSE(shared.jobRunning());
}

TEST_F(Interpreter, LosesTheLinesBehindAFailure) {
    runJob(1, 1);
    read("Interrupted.\rThe parameter is incorrect.\r");
    EXPECT_EQ(result(1), "Aborted");
}

TEST_F(Interpreter, ReadsAFailureInALaterLine) {
    runJob(1, 1);
    read("10%\rInterrupted.");
    EXPECT_EQ(result(1), "Aborted");
    EXPECT_TRUE(shared.blnJobDone);
    EXPECT_TRUE(shared.blnQueueRunning);
}

TEST_F(Interpreter, StopsAtAMalformedLineOfASingleJob) {
    runJob(1, 1);
    EXPECT_THROW(read("10%, 1 min remaining, 1.00 MB/sec\r20%, remaining\r30%\r"), Fault);
    EXPECT_EQ(status.picCurrent.tag.get(), "10");
}

TEST_F(Interpreter, PassesOverAMalformedLineInAQueue) {
    runJob(1, 2);
    read("10%, 1 min remaining, 1.00 MB/sec\r20%, remaining\r30%\r");
    EXPECT_EQ(status.picCurrent.tag.get(), "30");
}

TEST_F(Interpreter, AnswersAWaitingDiscQuestionInTheMiddleOfAJob) {
    runJob(1, 2);
    shared.blnDiscInfo = true;
    read("DVD 50%");
    EXPECT_EQ(form.cmbType.listIndex, 1);
    EXPECT_TRUE(shared.blnDiscInfo);
}

TEST_F(Interpreter, ReadsAnAnswerAboutADiscBeforeAGameList) {
    form.cmbOptical.addItem("cd0:  [4.38GB]");
    form.cmbOptical.listIndex = 0;
    shared.blnDiscInfo = true;
    shared.blnReadTOC = true;
    read("The device is not ready. A connection attempt failed");
    EXPECT_EQ(messages(),
              QStringList{"There is either no disc in the drive or a PS2 game was not found on the disc."});
    EXPECT_TRUE(shared.blnReadTOC);
}

TEST_F(Interpreter, ReadsOnBehindAnAnswerAboutADisc) {
    shared.blnDiscInfo = true;
    shared.blnReadTOC = true;
    read("DVD 4193280KB LANTERN SLUS_990.71");
    EXPECT_FALSE(shared.blnDiscInfo);
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(Interpreter, ReadsOnBehindTheDevicesOfAQuery) {
    const ui::ComboBox& ofSettings = shared.frmSettings->cmbHD;
    const QString answer = "\thdd1:  1024 MB, formatted Playstation 2 HDD\r\n\tcd0:  700 MB\r\n";
    for (bool* const query : {&shared.blnQueryHD, &shared.blnQueryOptical}) {
        *query = true;
        shared.blnQuerySettings = true;
        const int before = ofSettings.listCount();
        read(answer);
        EXPECT_EQ(ofSettings.listCount(), before + 1);
        EXPECT_FALSE(shared.blnQuerySettings);
    }
}

TEST_F(Interpreter, ReadsNothingBehindTheBoxAboutMissingDiscs) {
    form.optOptical.value = true;
    shared.blnQueryOptical = true;
    shared.blnQuerySettings = true;
    read("\thdd1:  1024 MB, formatted Playstation 2 HDD\r\n");
    EXPECT_EQ(messages().size(), 1);
    EXPECT_EQ(shared.frmSettings->cmbHD.listCount(), 0);
    EXPECT_TRUE(shared.blnQuerySettings);
}

TEST_F(Interpreter, PassesOverAnUnreadableGameListInAQueue) {
    runJob(1, 2);
    shared.blnReadTOC = true;
    read("type 50%\r\ntotal 0MB, used 0MB, available 0MB\rInterrupted.");
    EXPECT_FALSE(shared.blnReadTOC);
    EXPECT_EQ(result(1), "Aborted");
}

TEST_F(Interpreter, StopsAtAnUnreadableAnswerWhileASingleJobRuns) {
    runJob(1, 1);
    shared.blnReadTOC = true;
    EXPECT_THROW(read("type 50%\r\ntotal 0MB, used 0MB, available 0MB\rInterrupted."), Fault);
    shared.blnDiscInfo = true;
    EXPECT_THROW(read("DVD 50%\rInterrupted."), Fault);
    EXPECT_EQ(result(1), "Pending");
}

TEST_F(Interpreter, AnswersWaitingQueriesInTheMiddleOfAJob) {
    runJob(1, 1);
    shared.blnQueryHD = true;
    shared.blnQuerySettings = true;
    read("\thdd1:  1024 MB, formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.listCount(), 1);
    EXPECT_EQ(shared.frmSettings->cmbHD.listCount(), 1);
    EXPECT_EQ(result(1), "Error (\thdd1:  1024 MB, formatted Playstation 2 HDD)");
}

TEST_F(Interpreter, ReadsTheLaterLinesOfAJobBehindAGameList) {
    runJob(1, 1);
    shared.blnReadTOC = true;
    read("50%\r60%");
    EXPECT_FALSE(shared.blnReadTOC);
    EXPECT_EQ(status.picCurrent.tag.get(), "60");
}

TEST_F(Interpreter, ReadsNoLaterLineOfAJobBehindAGameListThatFailed) {
    runJob(1, 1);
    shared.blnReadTOC = true;
    read("50%, A connection attempt failed\r60%");
    EXPECT_EQ(messages().size(), 1);
    EXPECT_EQ(status.picCurrent.tag.get(), "50");
}

TEST_F(Interpreter, ReadsNoLaterLineByItselfWhileNoJobRuns) {
    shared.blnDiscInfo = true;
    read("Opening the image...\rDVD 4193280KB LANTERN SLUS_990.71");
    EXPECT_EQ(form.txtGameName.text.get(), "");
    EXPECT_TRUE(shared.blnDiscInfo);
}

TEST_F(Interpreter, ReadsAQueryAnswerOnlyOnce) {
    shared.blnQueryHD = true;
    const QString answer = "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n";
    read(answer);
    read(answer);
    EXPECT_EQ(form.cmbHD.listCount(), 1);
}

} // namespace
} // namespace tarnwell

#include "interpreter_fixture.h"

namespace tarnwell {
namespace {

class FailureStage : public InterpreterTest {};

TEST_F(FailureStage, NamesEveryKnownFailure) {
    const std::pair<const char*, const char*> failures[] = {
        {"Interrupted.", "Aborted"},
        {"cd0:: Input or output is unsupported.\r\n", "Error (Input or output is unsupported)"},
        {"C:\\game.iso: The file exists.\r\n", "Error (File already exists)"},
        {"hdd1:: not enough free space.\r\n", "Error (Insufficient disk space)"},
        {"There is not enough space on the disk.\r\n", "Error (Insufficient disk space)"},
        {"The parameter is incorrect.\r\n", "Error (The parameter is incorrect)"},
        {"SPTI error: 05 sense 24\r\n", "SPTI Error (05)"},
        {"No space left\r\n", "Error (No space left\r\n)"},
    };
    runJob(1, 1);
    for (const auto& [text, word] : failures) {
        shared.blnJobDone = false;
        read(text);
        EXPECT_EQ(result(1), word) << text;
        EXPECT_TRUE(shared.blnJobDone) << text;
        EXPECT_TRUE(shared.blnQueueRunning) << text;
    }
}

TEST_F(FailureStage, LetsTheFirstKnownFailureCount) {
    runJob(1, 1);
    read("The parameter is incorrect. Interrupted.");
    EXPECT_EQ(result(1), "Aborted");
}

TEST_F(FailureStage, RanksTheKnownFailures) {
    const std::pair<QString, QString> failures[] = {
        {"Interrupted.", "Aborted"},
        {"Input or output is unsupported.", "Error (Input or output is unsupported)"},
        {"x.iso: The file exists.", "Error (File already exists)"},
        {"There is not enough space on the disk.", "Error (Insufficient disk space)"},
        {"The parameter is incorrect.", "Error (The parameter is incorrect)"},
        {"SPTI error: 05", "SPTI Error (05)"},
    };
    runJob(1, 1);
    for (std::size_t i = 1; i < std::size(failures); ++i) {
        read(failures[i].first + ' ' + failures[i - 1].first);
        EXPECT_EQ(result(1), failures[i - 1].second);
    }
}

TEST_F(FailureStage, TakesAFileThatExistsForOneOnlyBehindAColon) {
    runJob(1, 1);
    read("The file exists.");
    EXPECT_EQ(result(1), "Error (The file exists.)");
}

TEST_F(FailureStage, TakesANoticeForAFailure) {
    runJob(1, 1);
    read("Opening the drive...");
    EXPECT_EQ(result(1), "Error (Opening the drive...)");
    EXPECT_TRUE(shared.blnJobDone);
}

TEST_F(FailureStage, CutsTheSptiCodeAtItsFixedPlace) {
    runJob(1, 1);
    read("cd0:: SPTI error: 05 sense");
    EXPECT_EQ(result(1), "SPTI Error (rror:)");
}

TEST_F(FailureStage, TakesAnSptiCodeUpToTheBlankOrTheEnd) {
    runJob(1, 1);
    read("SPTI error: 05");
    EXPECT_EQ(result(1), "SPTI Error (05)");
    read("SPTI error: 5 sense 24");
    EXPECT_EQ(result(1), "SPTI Error (5)");
    read("SPTI error:");
    EXPECT_EQ(result(1), "SPTI Error ()");
}

TEST_F(FailureStage, TakesABlankInFrontOfAnSptiCodeForItsFirstLetter) {
    runJob(1, 1);
    read("SPTI error:  05 sense");
    EXPECT_EQ(result(1), "SPTI Error ( 05)");
}

TEST_F(FailureStage, HeedsCase) {
    runJob(1, 1);
    read("interrupted.");
    EXPECT_EQ(result(1), "Error (interrupted.)");
}

TEST_F(FailureStage, KeepsALongMessageInFull) {
    runJob(1, 1);
    const QString text = QString(300, QChar(0x00e9));
    read(text);
    EXPECT_EQ(result(1), "Error (" + text + ")");
}

TEST_F(FailureStage, ReplacesTheWordByTheNextOne) {
    runJob(1, 1);
    read("Some notice");
    read("Interrupted.");
    EXPECT_EQ(result(1), "Aborted");
}

TEST_F(FailureStage, WritesTheRowOfTheRunningJobOnly) {
    runJob(2, 3);
    read("Interrupted.");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_EQ(result(2), "Aborted");
    EXPECT_EQ(result(3), "Pending");
}

TEST_F(FailureStage, GoesNowhereForAnInstall) {
    addJobs(1);
    shared.intJobIndex = 1;
    runInstall();
    read("Interrupted.");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_TRUE(shared.blnJobDone);
    EXPECT_TRUE(shared.blnInstallRunning);
}

TEST_F(FailureStage, WritesNowhereForARowThatIsNotThere) {
    runJob(5, 1);
    read("Interrupted.");
    EXPECT_EQ(result(1), "Pending");
    EXPECT_TRUE(shared.blnJobDone);
}

TEST_F(FailureStage, MarksTheRowOfALostConnectionWhetherAJobRunsOrNot) {
    addJobs(1);
    shared.intJobIndex = 1;
    read("No connection could be made because the target machine actively refused it.");
    EXPECT_EQ(result(1), "Error (Could not connect to PS2, restart tarnd_svr.elf)");
    EXPECT_FALSE(shared.blnJobDone);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(FailureStage, MarksTheRowOfALostConnectionBeforeItTellsTheUser) {
    addJobs(1);
    shared.intJobIndex = 1;
    shared.blnReadTOC = true;
    QString seen;
    outside.dialogs.whileOpen = [&] { seen = result(1); };
    read("No connection could be made because the target machine actively refused it.");
    EXPECT_EQ(seen, "Error (Could not connect to PS2, restart tarnd_svr.elf)");
}

TEST_F(FailureStage, WritesNothingForALostConnectionWithoutJobs) {
    shared.intJobIndex = 1;
    read("No connection could be made because the target machine actively refused it.");
    EXPECT_EQ(form.lstJob.count(), 0);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(FailureStage, LeavesTheListAloneWhenAnInstallLosesItsConnection) {
    addJobs(1);
    shared.intJobIndex = 1;
    runInstall();
    read("No connection could be made because the target machine actively refused it.");
    EXPECT_EQ(result(1), "Pending");
}

} // namespace
} // namespace tarnwell

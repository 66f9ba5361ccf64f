#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class CancelledInstall : public WholeProgram {
protected:
    void prepare(User& user, const QString& behaviour) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\n" + behaviour);
        startInstall(user);
    }

    static void cancel(User& user) {
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
    }

    /// The tool was run once, heard the interrupt, and has left no half game.
    void expectCleanDisk(User& user, int runs = 1) const {
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_EQ(user.rows("lstHD").size(), 3) << user.rows("lstHD").join('\n').toStdString();
        EXPECT_TRUE(user.enabled("cmdInstall"));
        EXPECT_EQ(bench.log().count("> inject_cd"), runs) << bench.log().toStdString();
        EXPECT_EQ(bench.log().count("< failed: Interrupted."), runs) << bench.log().toStdString();
        EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST"));
    }

    const QString image = makeImage();
};

/// A tool that was stopped before it said a word is started once more, unless its parting word came in time.
TEST_F(CancelledInstall, BeforeTheToolHasPrintedAnything) {
    play([&](User& user) {
        prepare(user, "start_delay_ms = 60000\n");
        user.waitFor("the tool to start", [&] { return bench.log().contains("> inject_cd"); });
        bench.behave("[inject_cd]\nhang_at_percent = 51\n");
        user.click("frmStatus.cmdStop");
        user.waitFor("the end or the second start",
                     [&] { return !user.windowUp("frmStatus") || user.percent("picOverall") >= 50; });
        const bool again = user.windowUp("frmStatus");
        if (again)
            cancel(user);
        user.waitUntilIdle();
        expectCleanDisk(user, again ? 2 : 1);
    });
}

TEST_F(CancelledInstall, InTheMiddle) {
    play([&](User& user) {
        prepare(user, "hang_at_percent = 51\n");
        waitForPercent(user, 50);
        cancel(user);
        expectCleanDisk(user);
    });
}

TEST_F(CancelledInstall, WithTheLastStepStillToCome) {
    play([&](User& user) {
        prepare(user, "hang_at_percent = 100\n");
        waitForPercent(user, 99);
        cancel(user);
        expectCleanDisk(user);
    });
}

TEST_F(CancelledInstall, ByAnImpatientUserWhoPressesTwice) {
    play([&](User& user) {
        prepare(user, "hang_at_percent = 51\n");
        waitForPercent(user, 50);
        user.look([&] {
            user.click("frmStatus.cmdStop");
            user.click("frmStatus.cmdStop");
        });
        user.waitUntilIdle();
        expectCleanDisk(user);
    });
}

TEST_F(CancelledInstall, OnceMoreAfterTheFirst) {
    play([&](User& user) {
        prepare(user, "hang_at_percent = 51\n");
        waitForPercent(user, 50);
        cancel(user);
        user.bringBack("frmMain");
        user.waitFor("the status window", [&] { return user.windowUp("frmStatus"); });
        user.closeWindow("frmStatus");
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        startInstall(user);
        waitForPercent(user, 50);
        cancel(user);
        expectCleanDisk(user, 2);
    });
}

TEST_F(CancelledInstall, TheProgramWaitsForAToolThatTakesItsTime) {
    play([&](User& user) {
        prepare(user, "delay_ms_per_step = 30\nignore_interrupt = yes\n");
        waitForPercent(user, 10);
        cancel(user);
        EXPECT_TRUE(bench.log().contains("< done")) << "the tool had not ended";
        EXPECT_EQ(user.rows("lstHD").size(), 4) << "this tool has finished the game all the same";
    });
}

} // namespace
} // namespace tarnwell::test

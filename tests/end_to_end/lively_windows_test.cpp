#include "end_to_end/ticker.h"
#include "end_to_end/whole_program.h"

#include <cstdio>

namespace tarnwell::test {
namespace {

/// A user who clicks during an install must find that the window answers.
class LivelyWindows : public WholeProgram {
protected:
    void install(User& user, const QString& behaviour) const {
        makeImage();
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\n" + behaviour);
        startInstall(user);
    }
};

/// A line that is torn where a read ends may be misread; that is told when the run has ended.
TEST_F(LivelyWindows, WhileTheToolPrintsAsFastAsItCan) {
    Ticker ticker;
    play([&](User& user) {
        install(user, "flood_lines = 10000\n");
        user.look([&] { ticker.start(); });
        user.waitFor("the end", [&] { return user.messageUp() || !user.windowUp("frmStatus"); });
        user.look([&] {
            std::printf("During a flood a window event waited for %.0f ms at most, behind %.0f ms of work\n",
                        ticker.longestWaitMs(), ticker.longestWorkMs());
            EXPECT_GE(ticker.ticks(), 20);
            EXPECT_LE(ticker.longestWorkMs(), kMostWorkAtATimeMs);
        });
        if (user.messageUp()) {
            EXPECT_TRUE(user.confirmMessage().startsWith("A line that tarnwell printed"));
        }
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST"));
    });
}

TEST_F(LivelyWindows, WhileACancelledToolTakesItsTime) {
    Ticker ticker;
    play([&](User& user) {
        install(user, "delay_ms_per_step = 20\nignore_interrupt = yes\n");
        waitForPercent(user, 5);
        user.click("frmStatus.cmdStop");
        user.look([&] { ticker.start(); });
        user.click("frmStatus.chkShutdown");
        user.waitFor("the tick", [&] {
            return user.look(
                [&] { return user.program().program().shared().frmStatus->chkShutdown.value == 1; });
        });
        EXPECT_TRUE(user.windowUp("frmStatus"));
        user.waitUntilIdle();
        EXPECT_TRUE(bench.log().contains("< done")) << "the tool had not ended";
        EXPECT_GT(ticker.ticks(), 50);
        EXPECT_LE(ticker.longestWorkMs(), kMostWorkAtATimeMs);
    });
}

} // namespace
} // namespace tarnwell::test

#include "end_to_end/whole_program.h"

#include <ctime>

namespace tarnwell::test {
namespace {

/// A tool that closes its output in the middle of an install and lives on.
class MuteTool : public WholeProgram {
protected:
    void install(User& user, const QByteArray& restOfItsLife) const {
        makeImage();
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        replaceTool("inject_cd",
                    "printf ' 50%%, 1 min remaining, 9.00 MB/sec\\r'; exec >&- 2>&-; " + restOfItsLife);
        startInstall(user);
        waitForPercent(user, 50);
    }
    static void expectUsable(User& user) {
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_TRUE(user.enabled("cmdInstall"));
        EXPECT_EQ(user.rows("lstHD").size(), 3);
    }
};

TEST_F(MuteTool, IsWaitedForToItsEnd) {
    play([&](User& user) {
        install(user, "sleep 1; touch \"$(dirname \"$0\")/at its end\"");
        EXPECT_TRUE(user.confirmMessage().startsWith("HARVEST was not installed completely."));
        user.waitUntilIdle();
        EXPECT_TRUE(QFile::exists(bench.path("at its end")));
        expectUsable(user);
    });
}

TEST_F(MuteTool, IsWaitedForAsleepAndCanBeCancelled) {
    constexpr int kWaitMs = 1000;
    constexpr double kMostOfTheTime = 0.5;
    play([&](User& user) {
        install(user, "trap 'exit 1' INT; while :; do sleep 0.1; done");
        const std::clock_t before = std::clock();
        QThread::msleep(kWaitMs);
        EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, kMostOfTheTime);
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
        expectUsable(user);
    });
}

} // namespace
} // namespace tarnwell::test

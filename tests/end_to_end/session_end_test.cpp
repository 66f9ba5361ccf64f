#include "end_to_end/session_end.h"
#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class EndOfTheSession : public WholeProgram {};

TEST_F(EndOfTheSession, DuringAnInstallGivesTheToolItsInterrupt) {
    makeImage();
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\nhang_at_percent = 51\n");
        startInstall(user);
        waitForPercent(user, 50);
        user.look([&] { endSession(); });
        EXPECT_TRUE(comesTrue([&] { return user.program().ports().pump.ended(); }));
    });
    EXPECT_TRUE(comesTrue([&] { return bench.log().contains("< failed: Interrupted."); }));
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST"));
}

} // namespace
} // namespace tarnwell::test

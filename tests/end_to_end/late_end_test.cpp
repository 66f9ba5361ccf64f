#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

/// A tool that has told 100 percent and takes long to end.
class LateEnd : public WholeProgram {};

TEST_F(LateEnd, AnInstallIsCancelledAtOneHundredPercent) {
    makeImage();
    replaceTool("inject_cd", "printf '100%%, 0 min remaining, 9.00 MB/sec\\r'; trap 'exit 1' INT; "
                             "while :; do sleep 0.1; done");
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        startInstall(user);
        waitForPercent(user, 100);
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_EQ(user.rows("lstHD").size(), 3);
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
}

} // namespace
} // namespace tarnwell::test

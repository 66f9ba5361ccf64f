#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class OddImage : public WholeProgram {
protected:
    void pick(User& user) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
    }

    /// An image that the tool cannot make sense of tells nothing, and cannot be installed.
    void expectUseless() const {
        play([&](User& user) {
            pick(user);
            EXPECT_EQ(user.text("txtGameName"), "");
            EXPECT_EQ(user.text("txtGameStartup"), "");
            EXPECT_EQ(user.text("txtGameSize"), "");
            user.click("cmdInstall");
            EXPECT_EQ(user.confirmMessage(), "Please enter a name for the game to install.");
            user.waitUntilIdle();
            // Its size was never read: that is told, and nothing starts.
            user.type("txtGameName", "Something");
            user.click("cmdInstall");
            EXPECT_NE(user.confirmMessage(), "");
            user.waitUntilIdle();
            EXPECT_TRUE(user.enabled("cmdInstall"));
        });
        EXPECT_EQ(logged("inject"), "");
    }
};

TEST_F(OddImage, AnEmptyFileIsUseless) {
    write(bench.path("game.iso"), {});
    expectUseless();
}

TEST_F(OddImage, AFileThatIsNoImageIsUseless) {
    write(bench.path("game.iso"), QByteArray(100'000, 'x'));
    expectUseless();
}

TEST_F(OddImage, OneThatHasGoneMeanwhileInstallsNothing) {
    makeImage();
    play([&](User& user) {
        pick(user);
        QFile::remove(bench.path("game.iso"));
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_EQ(user.rows("lstHD").size(), 3);
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
}

} // namespace
} // namespace tarnwell::test

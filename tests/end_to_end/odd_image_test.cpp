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

TEST_F(OddImage, ASecondOneDoesNotGetTheGameOfTheFirst) {
    makeImage();
    write(bench.path("broken.iso"), QByteArray(100'000, 'x'));
    play([&](User& user) {
        pick(user);
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
        pickImage(user, "broken.iso");
        user.waitUntilIdle();
        EXPECT_TRUE(user.text("txtISO").endsWith("broken.iso"));
        for (const char* box : {"txtGameName", "txtGameStartup", "txtGameSize"})
            EXPECT_EQ(user.text(box), "") << box;
        user.click("cmdInstall");
        EXPECT_EQ(user.confirmMessage(), "Please enter a name for the game to install.");
        user.waitUntilIdle();
        user.type("txtGameName", "Something");
        user.click("cmdInstall");
        EXPECT_TRUE(user.confirmMessage().startsWith("The size of the game is not known"));
        user.waitUntilIdle();
    });
    EXPECT_EQ(logged("inject"), "");
}

TEST_F(OddImage, OneThatHasGoneMeanwhileInstallsNothing) {
    makeImage();
    play([&](User& user) {
        pick(user);
        QFile::remove(bench.path("game.iso"));
        startInstall(user);
        EXPECT_TRUE(user.confirmMessage().endsWith("The system cannot find the file specified."));
        user.waitUntilIdle();
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_EQ(user.rows("lstHD").size(), 3);
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
}

} // namespace
} // namespace tarnwell::test

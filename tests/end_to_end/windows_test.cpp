#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class Windows : public WholeProgram {
protected:
    void startSlowInstall(User& user) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\ndelay_ms_per_step = 25\n");
        startInstall(user);
        waitForPercent(user, 20);
    }

    const QString image = makeImage();
};

TEST_F(Windows, ClosingTheMainWindowDuringAnInstallEndsTheProgramAndTheToolFinishesTheGame) {
    play([&](User& user) {
        startSlowInstall(user);
        user.bringBack("frmMain");
        user.closeWindow("frmMain");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_FALSE(bench.log().contains("< failed"));
    });
    ASSERT_TRUE(comesTrue([&] { return bench.log().count("< done") > bench.log().count("> query") + 2; }))
        << bench.log().toStdString();
    EXPECT_TRUE(extract("hdd1:", "HARVEST") == contents(image));
}

TEST_F(Windows, TheStatusWindowCannotBeClosedDuringAnInstallButMinimises) {
    play([&](User& user) {
        startSlowInstall(user);
        user.closeWindow("frmStatus");
        user.waitFor("the status window to minimise", [&] { return !user.windowUp("frmStatus"); });
        user.waitFor("progress in its title",
                     [&] { return user.text("frmStatus").contains("% Complete ["); });
        user.bringBack("frmStatus");
        EXPECT_TRUE(user.windowUp("frmStatus"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST"));
    });
}

TEST_F(Windows, HidingWithoutATrayMinimises) {
    play([&](User& user) {
        if (user.program().ports().tray.available())
            GTEST_SKIP() << "there is a tray here";
        user.click("cmdMinimize");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look([&] { return user.program().mainWindow().isMinimized(); }));
        user.bringBack("frmMain");
        EXPECT_TRUE(user.windowUp("frmMain"));
        user.click("optBrowse");
        user.waitUntilIdle();
        EXPECT_TRUE(user.shown("lstHD"));
    });
}

TEST_F(Windows, HidingLeavesTheTrayIconToComeBackBy) {
    play([&](User& user) {
        if (!user.program().ports().tray.available())
            GTEST_SKIP() << "there is no tray here";
        user.click("cmdMinimize");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look([&] { return user.program().mainWindow().isHidden(); }));
        user.bringBack("frmMain");
        user.waitUntilIdle();
        EXPECT_TRUE(user.windowUp("frmMain"));
    });
}

TEST_F(Windows, ExitEndsTheProgram) {
    play([&](User& user) {
        user.click("cmdExit");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
    });
}

} // namespace
} // namespace tarnwell::test

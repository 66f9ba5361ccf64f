#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class GameList : public WholeProgram {};

TEST_F(GameList, AGameOfAConsoleIsRenamedInPlace) {
    play([&](User& user) {
        openConsole(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Paper Kites");
        user.editLabel("lstHD", "Paper Kites 2");
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD").last(), "Paper Kites 2 | SLUS_990.32 | 0.53GB | CD | +1");
        EXPECT_EQ(user.rows("lstHD").size(), 2);
    });
    const QString list = bench.run({"tarn_toc", "127.0.0.1"});
    EXPECT_TRUE(list.contains("Paper Kites 2")) << list.toStdString() << bench.log().toStdString();
}

TEST_F(GameList, ANewNameThatOnlyDiffersInCaseIsRefused) {
    play([&](User& user) {
        openConsole(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Paper Kites");
        user.editLabel("lstHD", "PAPER KITES");
        EXPECT_TRUE(user.confirmMessage().contains("changing the case"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("Paper Kites | "));
    });
    EXPECT_EQ(logged("modify"), "");
}

TEST_F(GameList, DeleteNowDeletesAndReadsTheListAgain) {
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Lantern");
        user.click("cmdDelete");
        user.clickMenuEntry("mnuDeleteNow");
        EXPECT_TRUE(user.agree().contains("Lantern"));
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD").size(), 2);
        EXPECT_EQ(user.text("fmBrowse"), "Browse, Backup, and Delete - 2 Games");
    });
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("Lantern"));
}

TEST_F(GameList, IsExportedInTheUsersFormat) {
    const QString file = bench.path("my games.txt");
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.click("cmdSaveList");
        user.pickFile(file);
        user.answer(" - %type, %size%tab%startup %flags");
        user.waitUntilIdle();
    });
    EXPECT_EQ(QString(contents(file)), "1. Marsh Runner  - DVD, 4.27GB\tSLUS_990.01 +1+3\r\n"
                                       "2. Copper Valley - DVD, 2.10GB\tSLES_990.02 \r\n"
                                       "3. Lantern       - CD, 0.60GB\tSLPM_990.03 +2\r\n");
}

} // namespace
} // namespace tarnwell::test

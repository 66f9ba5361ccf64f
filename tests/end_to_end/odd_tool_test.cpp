#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

const QString kUnknownError =
    "An unknown error has occurred. Please try restarting the program and make sure "
    "to close tarnwell.exe by pressing CTRL+ALT+DEL.";

/// Tools that are missing, broken or talk nonsense. The program must say so, or make the best of it, and stay
/// usable.
class OddTool : public WholeProgram {
protected:
    void behave(const QString& command, const QString& lines) const {
        bench.behave('[' + command + "]\n" + lines + '\n');
    }

    /// As soon as the tool behaves again, so does the program.
    void expectUsable(User& user) const {
        bench.behave({});
        user.bringBack("frmMain");
        openDisk(user);
        EXPECT_EQ(user.rows("lstHD").size(), 3);
        EXPECT_TRUE(user.enabled("cmdInstall"));
    }
};

TEST_F(OddTool, AMissingOneIsMissed) {
    QFile::rename(bench.tool(), bench.path("elsewhere"));
    play([&](User& user) {
        for (const char* starter : {"cmdAttach", "cmdShutdownPS2", "cmdISO", "optOptical", "optLocal"}) {
            user.click(starter);
            EXPECT_EQ(user.confirmMessage(), "tarnwell.exe was not found. Place it in the same directory as "
                                             "this program and try again.");
            user.waitUntilIdle();
        }
        QFile::rename(bench.path("elsewhere"), bench.tool());
        expectUsable(user);
    });
}

TEST_F(OddTool, OneThatCannotBeStartedIsGivenUp) {
    QFile::rename(bench.tool(), bench.path("elsewhere"));
    write(bench.tool(), "no program");
    play([&](User& user) {
        user.click("chkOutput");
        user.click("optLocal");
        EXPECT_EQ(user.confirmMessage(), kUnknownError);
        EXPECT_TRUE(user.text("txtOutput").startsWith(bench.tool() + " could not be started: "));
        EXPECT_EQ(user.confirmMessage(), "No PS2 formatted HDD's were found on your system.");
        user.waitUntilIdle();
        QFile::remove(bench.tool());
        QFile::rename(bench.path("elsewhere"), bench.tool());
        expectUsable(user);
    });
}

TEST_F(OddTool, ASilentOneIsStartedFourTimes) {
    play([&](User& user) {
        openDisk(user);
        behave("tarn_toc", "silent = yes");
        const qsizetype before = bench.log().count("> tarn_toc");
        user.click("cmdAttach");
        EXPECT_EQ(user.confirmMessage(), kUnknownError);
        user.waitUntilIdle();
        EXPECT_EQ(bench.log().count("> tarn_toc") - before, 4);
        expectUsable(user);
    });
}

TEST_F(OddTool, OneThatDiesAtOnceLeavesTheProgramUsable) {
    play([&](User& user) {
        openDisk(user);
        behave("tarn_toc", "notice = Segmentation fault\nexit_at_percent = 0");
        user.click("cmdAttach");
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD"), QStringList());
        expectUsable(user);
    });
}

TEST_F(OddTool, OneThatDiesInTheMiddleOfAnInstallLeavesNoHalfGame) {
    makeImage();
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        behave("inject_cd", "exit_at_percent = 40");
        startInstall(user);
        EXPECT_TRUE(user.confirmMessage().startsWith("HARVEST was not installed completely."));
        user.waitUntilIdle();
        expectUsable(user);
    });
}

TEST_F(OddTool, HalfALineDoesNoHarm) {
    play([&](User& user) {
        openDisk(user);
        behave("tarn_toc", "cut_after = 110"); // in the middle of the second game
        user.click("cmdAttach");
        user.waitUntilIdle();
        EXPECT_FALSE(user.rows("lstHD").isEmpty());
        expectUsable(user);
    });
}

TEST_F(OddTool, OutputInAwkwardPiecesIsReadAllTheSame) {
    play([&](User& user) {
        behave("tarn_toc", "split_after = 3,20,47,48,90,141\nsplit_pause_ms = 50");
        openDisk(user);
        EXPECT_EQ(user.rows("lstHD").first(), "Marsh Runner | SLUS_990.01 | 4.27GB | DVD | +1+3");
        EXPECT_EQ(user.rows("lstHD").size(), 3);
    });
}

TEST_F(OddTool, OneThatHangsInAQueryKeepsNobodyFromLeaving) {
    play([&](User& user) {
        openDisk(user);
        behave("tarn_toc", "start_delay_ms = 3000");
        user.click("cmdAttach");
        user.waitFor("the tool to start", [&] { return bench.log().count("> tarn_toc") == 2; });
        user.closeWindow("frmMain");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
    });
}

TEST_F(OddTool, NoiseIsNoGame) {
    makeImage();
    play([&](User& user) {
        bench.behave("[tarn_toc]\nbinary_noise = 6000\n[cdvd_info2]\nbinary_noise = 6000\n");
        openDisk(user);
        EXPECT_EQ(user.rows("lstHD"), QStringList());
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameName"), "");
        expectUsable(user);
    });
}

} // namespace
} // namespace tarnwell::test

#include "simulator/tool_runner.h"

#include <algorithm>

namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

class Behaviours : public SimulatedTool {
protected:
    Behaviours() { makeImage("a.iso"); }

    Words install() const { return {"inject_cd", "hdd1:", "Game", "a.iso"}; }
    steady_clock::duration timeOf(const Words& words) const {
        const auto start = steady_clock::now();
        run(words);
        return steady_clock::now() - start;
    }
};

TEST_F(Behaviours, EveryFailureCanBeCalledByName) {
    const std::pair<const char*, const char*> failures[] = {
        {"connection_closed", "existing connection was forcibly closed by the remote host"},
        {"refused", "No connection could be made because the target machine actively refused it."},
        {"connection_attempt", "A connection attempt failed"},
        {"interrupted", "Interrupted."},
        {"unsupported", "Input or output is unsupported."},
        {"file_exists", ": The file exists."},
        {"no_space", "not enough free space."},
        {"disk_full", "There is not enough space on the disk."},
        {"parameter", "The parameter is incorrect."},
        {"not_ready", "The device is not ready."},
        {"not_ps2_disc", "not a Playstation CD-ROM/DVD-ROM."},
        {"bad_isofs", "bad ISOFS."},
        {"not_ps2_hdd", "not a PlayStation 2 HDD."},
        {"Words of my own", "Words of my own"},
    };
    for (const auto& [name, words] : failures) {
        behave(std::string("fail = ") + name + "\n");
        const Result result = run(install());
        EXPECT_NE(result.text.find(words), std::string::npos) << result.text;
        EXPECT_TRUE(result.text.ends_with("\r\n"));
        EXPECT_EQ(result.exitCode, 1);
    }
}

TEST_F(Behaviours, TheCodeOfADriveErrorStandsBehindTheTwelfthCharacterAndEndsAtABlank) {
    behave("fail = spti\n");
    const std::string error = text({"dump", "E:", "x.iso"});
    EXPECT_EQ(error.substr(0, 12), "SPTI error: ");
    EXPECT_EQ(error.substr(12, error.find(' ', 13) - 12), "0x03");
}

TEST_F(Behaviours, AFailureCanComeInTheMiddleAndNothingIsLeft) {
    behave("fail = disk_full\nfail_at_percent = 45\n");
    const std::string output = text(install());
    EXPECT_NE(output.find("\r 44%, "), std::string::npos);
    EXPECT_EQ(output.find("45%"), std::string::npos);
    EXPECT_TRUE(output.ends_with("\rThere is not enough space on the disk.\r\n"));
    EXPECT_EQ(filesIn(gamesFolder()), 0u);
}

TEST_F(Behaviours, AFailureAtTheVeryEndLeavesNothingEither) {
    behave("fail = connection_closed\nfail_at_percent = 100\n");
    EXPECT_EQ(text(install()).find("100%"), std::string::npos);
    EXPECT_FALSE(disk("hdd1").find("Game"));
}

TEST_F(Behaviours, LinesBehindACommandCountForThatCommandAlone) {
    behave("notice = everyone\n[inject_cd]\nfail = no_space\nnotice = installers\n[dump]\nsilent = yes\n");
    EXPECT_EQ(text(install()), "installers\r\nnot enough free space.\r\n");
    EXPECT_EQ(text({"tarn_toc", "hdd1:"}).substr(0, 14), "everyone\r\ntype");
    EXPECT_EQ(text({"dump", "E:", "x.iso"}), "");
    EXPECT_TRUE(std::filesystem::exists(folder() / "x.iso"));
}

TEST_F(Behaviours, SlownessIsAsToldAndWorksByTheByteToo) {
    behave("delay_ms_per_step = 3\n");
    EXPECT_GE(timeOf(install()), 300ms);
    behave("bytes_per_second = 4000000\n");
    EXPECT_GE(timeOf({"dump", "E:", "x.iso"}), 260ms);
    behave("start_delay_ms = 200\n");
    EXPECT_GE(timeOf({"query"}), 200ms);
}

TEST_F(Behaviours, ASilentToolDoesItsWork) {
    behave("silent = yes\n");
    EXPECT_EQ(text(install()), "");
    EXPECT_TRUE(disk("hdd1").find("Game"));
    EXPECT_EQ(text({"tarn_toc", "hdd9:"}), "");
}

TEST_F(Behaviours, OutputCanBeCutAndSplitAnywhere) {
    const std::string whole = text({"query"});
    behave("cut_after = 20\n");
    EXPECT_EQ(text({"query"}), whole.substr(0, 20));
    behave("split_after = 40, 7\nsplit_pause_ms = 100\n");
    RunningTool tool(program(), {"query"}, folder());
    EXPECT_EQ(tool.readSome(), whole.substr(0, 7));
    EXPECT_EQ(tool.finish().text, whole);
}

TEST_F(Behaviours, ProgressLinesArriveOneByOne) {
    behave("delay_ms_per_step = 20\n");
    RunningTool tool(program(), install(), folder());
    EXPECT_EQ(tool.readSome(), "  0%\r");
    const std::string next = tool.readSome();
    EXPECT_EQ(next.substr(0, 4), "  1%");
    EXPECT_EQ(std::count(next.begin(), next.end(), '\r'), 1);
}

TEST_F(Behaviours, AFloodAndNoiseComeBeforeTheRealOutput) {
    behave("flood_lines = 3\n");
    const std::string output = text(install());
    const std::string line = "  0%, 1 min remaining, 1.00 MB/sec\r";
    EXPECT_EQ(output.substr(0, 3 * line.size() + 5), line + line + line + "  0%\r");

    behave("binary_noise = 300\n");
    const std::string noisy = text({"query"});
    ASSERT_GT(noisy.size(), 300u);
    EXPECT_EQ(noisy[0], '\0');
    EXPECT_EQ(noisy[255], '\xFF');
    EXPECT_EQ(noisy[256], '\0');
    EXPECT_EQ(noisy.substr(300, 11), "Hard disks:");
}

TEST_F(Behaviours, AManyLinedFloodPassesQuickly) {
    behave("flood_lines = 100000\n");
    EXPECT_TRUE(text({"query"}).ends_with("\tE:  1 MB\r\n"));
}

TEST_F(Behaviours, AToolThatVanishesLeavesItsHalfWorkButNoGame) {
    behave("exit_at_percent = 50\nexit_code = 7\n");
    const Result result = run(install());
    EXPECT_EQ(result.exitCode, 7);
    EXPECT_EQ(result.text.find("50%"), std::string::npos);
    EXPECT_FALSE(disk("hdd1").find("Game"));
    EXPECT_EQ(filesIn(gamesFolder()), 1u);
}

TEST_F(Behaviours, TheExitCodeCanBeSet) {
    behave("exit_code = 9\n");
    EXPECT_EQ(run({"query"}).exitCode, 9);
    EXPECT_EQ(run({"tarn_toc", "hdd3:"}).exitCode, 9);
}

TEST_F(Behaviours, NonsenseInTheFileChangesNothing) {
    const std::string plain = text({"query"});
    behave("\r\n= 3\nfail_at_percent\n[\nsplit_after = x,,-1\ncut_after = -5\nexit_code = "
           "many\nstart_delay_ms =\n");
    EXPECT_EQ(run({"query"}).exitCode, 0);
    EXPECT_EQ(text({"query"}), plain);
}

} // namespace

#include "simulator/tool_runner.h"

#include <thread>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Interrupts : public SimulatedTool {
protected:
    Interrupts() {
        makeImage("a.iso", "SLUS_123.45", 4 * simulator::kSmallestDiscBytes);
        run({"inject_cd", "hdd1:", "Game", "a.iso"});
    }

    /// Interrupts a command once it has printed `sign`, and looks at how it ends.
    void expectPromptEnd(const Words& words, const std::string& sign) const {
        RunningTool tool(program(), words, folder());
        ASSERT_TRUE(tool.readUntil(sign));
        const auto start = std::chrono::steady_clock::now();
        tool.interrupt();
        const Result result = tool.finish();
        EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
        EXPECT_TRUE(result.text.ends_with("Interrupted.\r\n")) << result.text;
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.text.find("100%"), std::string::npos);
    }
};

TEST_F(Interrupts, AnInstallStopsAndLeavesNothingBehind) {
    behave("delay_ms_per_step = 50\n");
    expectPromptEnd({"inject_cd", "hdd2:", "New", "a.iso"}, " 2%");
    EXPECT_EQ(filesIn(gamesFolder("hdd2")), 0u);
    EXPECT_NE(log().find("< failed: Interrupted.\n"), std::string::npos);
}

TEST_F(Interrupts, ExtractAndDumpStopAndRemoveTheHalfImage) {
    behave("bytes_per_second = 200000\n");
    expectPromptEnd({"extract", "hdd1:", "Game", "x.iso"}, " 1%");
    EXPECT_FALSE(fs::exists(folder() / "x.iso"));
    expectPromptEnd({"dump", "E:", "y.iso"}, " 1%");
    EXPECT_FALSE(fs::exists(folder() / "y.iso"));
}

TEST_F(Interrupts, EveryPauseEndsAtOnce) {
    behave("notice = ready\nhang_at_percent = 0\n");
    expectPromptEnd({"query"}, "ready");
    behave("hang_at_percent = 30\n");
    expectPromptEnd({"inject_cd", "hdd2:", "New", "a.iso"}, "29%");
    behave("[tarn_toc]\nhang_at_percent = 100\n");
    expectPromptEnd({"tarn_toc", "hdd1:"}, "total");
}

TEST_F(Interrupts, AToolThatIgnoresItWorksOn) {
    behave("ignore_interrupt = yes\ndelay_ms_per_step = 2\n");
    RunningTool tool(program(), {"inject_cd", "hdd2:", "New", "a.iso"}, folder());
    ASSERT_TRUE(tool.readUntil(" 2%"));
    tool.interrupt();
    const Result result = tool.finish();
    EXPECT_NE(result.text.find("100%"), std::string::npos);
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(Interrupts, ItWorksOnWhenNobodyReadsAnyMore) {
    behave("delay_ms_per_step = 1\n");
    RunningTool tool(program(), {"inject_cd", "hdd2:", "New", "a.iso"}, folder());
    ASSERT_TRUE(tool.readUntil(" 2%"));
    tool.closePipe();
    EXPECT_EQ(tool.finish().exitCode, 0);
    EXPECT_TRUE(disk("hdd2").find("New"));
}

TEST_F(Interrupts, AToolThatIsBlockedByAFullPipeCanBeInterrupted) {
    behave("flood_lines = 100000000\n");
    RunningTool tool(program(), {"query"}, folder());
    ASSERT_TRUE(tool.readUntil("Line 1\r\n"));
    std::this_thread::sleep_for(100ms); // long enough to fill the pipe
    tool.interrupt();
    EXPECT_TRUE(tool.finish().text.ends_with("Interrupted.\r\n"));
}

TEST_F(Interrupts, AKilledInstallIsNoGameAndItsRestIsClearedAway) {
    behave("hang_at_percent = 50\n");
    RunningTool tool(program(), {"inject_cd", "hdd2:", "New", "a.iso"}, folder());
    ASSERT_TRUE(tool.readUntil("49%"));
    tool.kill();
    tool.finish();
    behave("");
    EXPECT_FALSE(disk("hdd2").find("New"));
    EXPECT_EQ(run({"inject_cd", "hdd2:", "New", "a.iso"}).exitCode, 0);
    EXPECT_EQ(filesIn(gamesFolder("hdd2")), 2u);
}

} // namespace

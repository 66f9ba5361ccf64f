#include "simulator/tool_runner.h"

#include <cstdio>

namespace {

namespace fs = std::filesystem;

using simulator::kMb;

class Copying : public SimulatedTool {};

/// Progress lines without their ends; what follows the last carriage return comes as a last line.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    for (std::size_t end; (end = text.find('\r', at)) != std::string::npos; at = end + 1)
        lines.push_back(text.substr(at, end - at));
    if (at < text.size())
        lines.push_back(text.substr(at));
    return lines;
}

TEST_F(Copying, ProgressGoesFromZeroToHundredInLinesEndedByACarriageReturn) {
    makeImage("a.iso");
    const Result result = run({"inject_dvd", "hdd1:", "Game", "a.iso"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.text.find('\n'), std::string::npos);
    const auto lines = linesOf(result.text);
    ASSERT_EQ(lines.size(), 101u);
    EXPECT_EQ(lines.front(), "  0%");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        int percent = -1, minutes = -1, whole = -1, part = -1, length = 0;
        std::sscanf(lines[i].c_str(), "%d%%, %d min remaining, %d.%d MB/sec%n", &percent, &minutes, &whole,
                    &part, &length);
        EXPECT_EQ(static_cast<std::size_t>(length), lines[i].size()) << lines[i];
        EXPECT_EQ(percent, static_cast<int>(i));
    }
    EXPECT_EQ(lines.back().substr(0, 5), "100%,");
    EXPECT_EQ(result.text.back(), '\r');
}

TEST_F(Copying, ExtractGivesBackTheInjectedBytes) {
    makeImage("a.iso", "SLUS_123.45", 3 * kMb);
    std::string odd = read(folder() / "a.iso") + "an end off every boundary";
    odd[1500000] = 'x';
    write(folder() / "a.iso", odd);
    ASSERT_EQ(run({"inject_dvd", "hdd1:", "Game", "a.iso"}).exitCode, 0);
    ASSERT_EQ(run({"extract", "hdd1:", "Game", "back.iso"}).exitCode, 0);
    EXPECT_TRUE(read(folder() / "back.iso") == odd);
}

TEST_F(Copying, TypeStartupAndFlagsAreKept) {
    makeImage("a.iso");
    ASSERT_EQ(run({"inject_cd", "hdd1:", "Game", "a.iso", "SLES_990.11", "+1+3+8"}).exitCode, 0);
    const simulator::Game game = disk("hdd1").get("Game");
    EXPECT_EQ(game.type, "CD");
    EXPECT_EQ(game.startup, "SLES_990.11");
    EXPECT_EQ(game.flags, "+1+3+8");
    EXPECT_EQ(game.sizeBytes, kMb);
}

TEST_F(Copying, AMissingOrEmptyStartupFileIsReadFromTheImage) {
    makeImage("a.iso", "SLPM_990.66");
    ASSERT_EQ(run({"inject_dvd", "hdd1:", "Without", "a.iso"}).exitCode, 0);
    ASSERT_EQ(run({"inject_dvd", "hdd1:", "Empty", "a.iso", "", "+2"}).exitCode, 0);
    EXPECT_EQ(disk("hdd1").get("Without").startup, "SLPM_990.66");
    EXPECT_EQ(disk("hdd1").get("Empty").startup, "SLPM_990.66");
    EXPECT_EQ(disk("hdd1").get("Empty").flags, "+2");
}

TEST_F(Copying, WithAStartupFileAnyFileCanBeInstalled) {
    write(folder() / "plain.bin", "no image at all");
    ASSERT_EQ(run({"inject_cd", "hdd1:", "Plain", "plain.bin", "SLES_990.11"}).exitCode, 0);
    ASSERT_EQ(run({"extract", "hdd1:", "Plain", "back.bin"}).exitCode, 0);
    EXPECT_EQ(read(folder() / "back.bin"), "no image at all");
}

TEST_F(Copying, ADiscIsInstalledFromItsDriveByEitherName) {
    ASSERT_EQ(run({"inject_cd", "hdd1", "By letter", "E:"}).exitCode, 0);
    ASSERT_EQ(run({"inject_cd", "hdd1", "By name", "cd1:"}).exitCode, 0);
    EXPECT_EQ(disk("hdd1").get("By letter").startup, "SLUS_999.99");
    EXPECT_EQ(disk("hdd1").get("By name").sizeBytes, kMb);
}

TEST_F(Copying, DumpMakesAnImageOfTheDisc) {
    const Result result = run({"dump", "E:", "my disc.iso"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.text.find("\r100%, "), std::string::npos);
    EXPECT_TRUE(read(folder() / "my disc.iso") == read(worldFolder() / "discs" / "game.iso"));
}

TEST_F(Copying, GamesAreCopiedBetweenDisksAndConsolesWithAllTheyHave) {
    makeImage("a.iso", "SLUS_123.45", 2 * kMb);
    run({"inject_dvd", "hdd1:", "My Game", "a.iso", "SLUS_123.45", "+4"});
    ASSERT_EQ(run({"inject_dvd", "hdd2:", "My Game", "My Game@hdd1:"}).exitCode, 0);
    ASSERT_EQ(run({"inject_dvd", "127.0.0.1", "My Game", "My Game@hdd2:"}).exitCode, 0);
    ASSERT_EQ(run({"inject_dvd", "hdd1", "Back again", "My Game@127.0.0.1"}).exitCode, 0);
    ASSERT_EQ(run({"extract", "hdd1:", "Back again", "back.iso"}).exitCode, 0);
    EXPECT_TRUE(read(folder() / "back.iso") == read(folder() / "a.iso"));
    EXPECT_EQ(console().get("My Game").flags, "+4");
    EXPECT_EQ(disk("hdd1").get("Back again").startup, "SLUS_123.45");
}

TEST_F(Copying, ANameMayHoldAnAtSignOfItsOwn) {
    makeImage("a.iso");
    run({"inject_dvd", "hdd1:", "me@home", "a.iso"});
    EXPECT_EQ(run({"inject_dvd", "hdd2:", "me@home", "me@home@hdd1:"}).exitCode, 0);
}

TEST_F(Copying, NamesPassThroughByteForByte) {
    const std::string name = "\xE9t\xE9 \xFF\x80 100% = # [x] ";
    makeImage("a.iso");
    ASSERT_EQ(run({"inject_dvd", "hdd1:", name, "a.iso"}).exitCode, 0);
    EXPECT_NE(text({"tarn_toc", "hdd1:"}).find("   " + name + "\r\n"), std::string::npos);
    EXPECT_EQ(run({"extract", "hdd1:", name, "back.iso"}).exitCode, 0);
    EXPECT_NE(run({"extract", "hdd1:", "\xE9t\xE9", "other.iso"}).exitCode, 0);
}

TEST_F(Copying, AGameThatJustFitsIsTaken) {
    makeImage("half.iso", "A", 512 * kMb);
    EXPECT_EQ(run({"inject_cd", "hdd1:", "One", "half.iso"}).exitCode, 0);
    EXPECT_EQ(run({"inject_cd", "hdd1:", "Two", "half.iso"}).exitCode, 0);
    EXPECT_EQ(text({"inject_cd", "hdd1:", "Three", "E:"}), "hdd1: not enough free space.\r\n");
}

TEST_F(Copying, TheSamplesAreWhatTheirNamesSay) {
    ASSERT_EQ(runProgram(builtProgram("tarnwell-samples"), {"samples"}, folder()).exitCode, 0);
    EXPECT_EQ(text({"cdvd_info2", "samples/cd-game.iso"}),
              "CD 65536KB \"SALT_AND_SAND\" \"SLUS_990.51\"\r\n");
    EXPECT_EQ(text({"cdvd_info2", "samples/DVD game.iso"}),
              "DVD 1126400KB \"EVENING_FERRY\" \"SLES_990.52\"\r\n");
    EXPECT_EQ(text({"cdvd_info2", "samples/dual-layer.iso"}).substr(0, 15), "dual-layer DVD ");
    EXPECT_EQ(text({"cdvd_info2", "samples/no-label.iso"}), "CD 131072KB \"\" \"SLPM_990.54\"\r\n");
    EXPECT_EQ(text({"cdvd_info2", "samples/not-a-game.iso"}),
              "samples/not-a-game.iso: not a Playstation CD-ROM/DVD-ROM.\r\n");
    EXPECT_EQ(runProgram(builtProgram("tarnwell-samples"), {"samples"}, folder()).exitCode, 0)
        << "made twice";
}

} // namespace

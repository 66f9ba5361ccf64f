#include "simulator/tool_runner.h"

namespace {

using simulator::kMb;

class Listing : public SimulatedTool {};

TEST_F(Listing, QueryNamesDisksDrivesAndDriveLettersInTheSameOrder) {
    EXPECT_EQ(text({"query"}), "Hard disks:\r\n"
                               "\thdd1:  1024MB, formatted Playstation 2 HDD\r\n"
                               "\thdd2:  1024MB, formatted Playstation 2 HDD\r\n"
                               "\thdd3:  2048MB, unknown format\r\n"
                               "Optical drives:\r\n"
                               "\tcd0:  no disc\r\n"
                               "\tcd1:  1 MB\r\n"
                               "Optical drives via SPTI:\r\n"
                               "\tD:  no disc\r\n"
                               "\tE:  1 MB\r\n");
}

TEST_F(Listing, QueryOrdersDisksByNumber) {
    simulator::Disk::create(worldFolder() / "disks" / "hdd10", "hdd10:", 500, true);
    const std::string answer = text({"query"});
    EXPECT_LT(answer.find("\thdd2:"), answer.find("\thdd10:"));
}

TEST_F(Listing, AListArrivesInOnePiece) {
    const std::string whole = text({"query"});
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(RunningTool(program(), {"query"}, folder()).readSome(), whole);
}

TEST_F(Listing, QueryOfAnEmptyWorldSaysNothing) {
    std::filesystem::remove_all(worldFolder() / "disks");
    std::filesystem::remove_all(worldFolder() / "drives");
    EXPECT_EQ(run({"query"}).exitCode, 0);
    EXPECT_EQ(text({"query"}), "");
}

TEST_F(Listing, TheTableOfAnEmptyDiskIsItsHeadingAndSummary) {
    EXPECT_EQ(text({"tarn_toc", "hdd1:"}), "type   size   flags          startup       name\r\n"
                                           "total 1024MB, used 0MB, available 1024MB\r\n");
}

TEST_F(Listing, TheTableHasFixedColumns) {
    makeImage("cd.iso", "SLUS_123.45", 200 * kMb);
    makeImage("dvd.iso", "SLES_1.2", 1 * kMb);
    ASSERT_EQ(run({"inject_cd", "hdd1:", "First Game", "cd.iso", "", "+1+3"}).exitCode, 0);
    ASSERT_EQ(run({"inject_dvd", "hdd1:", "Second", "dvd.iso"}).exitCode, 0);
    EXPECT_EQ(text({"tarn_toc", "hdd1:"}), "type   size   flags          startup       name\r\n"
                                           "CD   204800KB +1+3           SLUS_123.45   First Game\r\n"
                                           "DVD    1024KB                SLES_1.2      Second\r\n"
                                           "total 1024MB, used 384MB, available 640MB\r\n");
}

TEST_F(Listing, LongFlagsAndStartupFilesDoNotMoveTheColumns) {
    makeImage("a.iso");
    run({"inject_dvd", "hdd1:", "Game", "a.iso", "LONGERTHAN.ELEVEN", "+1+2+3+4+5+6+7+8"});
    const std::string table = text({"tarn_toc", "hdd1:"});
    EXPECT_NE(table.find("DVD    1024KB +1+2+3+4+5+6+7+LONGERTHAN.   Game\r\n"), std::string::npos) << table;
    EXPECT_EQ(disk("hdd1").get("Game").flags, "+1+2+3+4+5+6+7+8");
}

TEST_F(Listing, DevicesAreFoundWithAndWithoutTheirColonAndByAddress) {
    simulator::Disk::create(worldFolder() / "disks" / "hdd10", "hdd10:", 500, true);
    for (const char* device : {"hdd1:", "hdd1", "hdd10", "hdd10:", "127.0.0.1"})
        EXPECT_EQ(text({"tarn_toc", device}).substr(0, 4), "type") << device;
}

TEST_F(Listing, DiscInformationIsOneLineForDriveLetterAndImage) {
    const std::string disc = "CD 1024KB \"DISC\" \"SLUS_999.99\"\r\n";
    for (const char* drive : {"cd1:", "cd1", "E:", "e:"})
        EXPECT_EQ(text({"cdvd_info2", drive}), disc) << drive;
    makeImage("My Game.iso", "SLUS_123.45", 1024 * kMb, "MY GAME");
    EXPECT_EQ(text({"cdvd_info2", "My Game.iso"}), "DVD 1048576KB \"MY GAME\" \"SLUS_123.45\"\r\n");
}

TEST_F(Listing, AnImageWithoutALabelHasAnEmptyName) {
    makeImage("a.iso", "SLUS_123.45", kMb, "");
    EXPECT_EQ(text({"cdvd_info2", "a.iso"}), "CD 1024KB \"\" \"SLUS_123.45\"\r\n");
}

TEST_F(Listing, TheLargestCdIsACdAndTheSmallestDualLayerDiscIsMarked) {
    const std::uint64_t cd = 99ull * 60 * 75 * 2048;
    const std::uint64_t layer = 2298496ull * 2048;
    makeImage("cd.iso", "A", cd);
    makeImage("dvd.iso", "A", cd + 2048);
    makeImage("layer.iso", "A", layer);
    makeImage("dual.iso", "A", layer + 2048);
    EXPECT_EQ(text({"cdvd_info2", "cd.iso"}).substr(0, 3), "CD ");
    EXPECT_EQ(text({"cdvd_info2", "dvd.iso"}).substr(0, 4), "DVD ");
    EXPECT_EQ(text({"cdvd_info2", "layer.iso"}).substr(0, 4), "DVD ");
    EXPECT_EQ(text({"cdvd_info2", "dual.iso"}), "dual-layer DVD 4596994KB \"LABEL\" \"A\"\r\n");
}

TEST_F(Listing, ADriveCanHoldADiscLargerThanItsImage) {
    write(worldFolder() / "drives" / "cd1.ini", "image = discs/game.iso\nsize_bytes = 4589617152\n");
    EXPECT_EQ(text({"cdvd_info2", "E:"}), "DVD 4482048KB \"DISC\" \"SLUS_999.99\"\r\n");
    EXPECT_NE(text({"query"}).find("\tcd1:  4377 MB\r\n"), std::string::npos);
}

TEST_F(Listing, UnknownCommandsAndNoneGetTheUsage) {
    const Result unknown = run({"frobnicate", "hdd1:"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_EQ(unknown.text.substr(0, 6), "Usage:");
    EXPECT_EQ(text({}), unknown.text);
}

TEST_F(Listing, TheFirstStartMakesAWorldWithEveryKindOfDevice) {
    std::filesystem::remove_all(worldFolder());
    const std::string devices = text({"query"});
    EXPECT_NE(devices.find("\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"), std::string::npos)
        << devices;
    EXPECT_NE(devices.find("\thdd3:  238475MB, unknown format\r\n"), std::string::npos) << devices;
    EXPECT_NE(text({"tarn_toc", "hdd1:"}).find("\r\nDVD 4482048KB +1+3"), std::string::npos);
    EXPECT_NE(text({"tarn_toc", "hdd2:"}).find("available 256MB"), std::string::npos);
    EXPECT_NE(text({"tarn_toc", "hdd3:"}).find("not a PlayStation 2 HDD."), std::string::npos);
    EXPECT_NE(text({"tarn_toc", "127.0.0.1"}).find("\r\nCD "), std::string::npos);
    EXPECT_EQ(text({"cdvd_info2", "cd0:"}), "cd0: The device is not ready.\r\n");
    EXPECT_EQ(text({"cdvd_info2", "cd1:"}).substr(0, 4), "DVD ");
    EXPECT_EQ(text({"cdvd_info2", "cd2:"}).substr(0, 11), "dual-layer ");
    EXPECT_EQ(text({"cdvd_info2", "cd3:"}), "cd3: not a Playstation CD-ROM/DVD-ROM.\r\n");
    EXPECT_EQ(text({"cdvd_info2", "cd4:"}).substr(0, 3), "CD ");
}

TEST_F(Listing, TheBehaviourFileOfANewWorldSwitchesNothingOn) {
    std::filesystem::remove_all(worldFolder());
    run({"query"});
    const std::string explanation = read(worldFolder() / "behaviour.txt");
    EXPECT_NE(explanation.find("fail_at_percent"), std::string::npos);
    for (std::size_t at = 0; at != std::string::npos; at = explanation.find('\n', at)) {
        at += at == 0 ? 0 : 1;
        EXPECT_TRUE(at == explanation.size() || explanation[at] == '#' || explanation[at] == '\n') << at;
    }
}

TEST_F(Listing, EveryCommandLineIsLogged) {
    makeImage("My Game.iso");
    run({"inject_dvd", "hdd1:", "My Game", "My Game.iso", "", "+1"});
    run({"tarn_toc", "hdd3:"});
    EXPECT_NE(log().find("> inject_dvd hdd1: \"My Game\" \"My Game.iso\" \"\" +1\n"), std::string::npos)
        << log();
    EXPECT_NE(log().find("< done\n"), std::string::npos);
    EXPECT_NE(log().find("> tarn_toc hdd3:\n"), std::string::npos);
    EXPECT_NE(log().find("< failed: hdd3: not a PlayStation 2 HDD.\n"), std::string::npos);
}

} // namespace

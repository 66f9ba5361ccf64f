#include "simulator/tool_runner.h"

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

using simulator::kMb;

/// Needs a system that tells where the holes of a file are.
class Holes : public SimulatedTool {};

/// What a file really takes of the disk.
std::uint64_t roomOf(const fs::path& file) {
    struct stat facts {};
    EXPECT_EQ(stat(file.c_str(), &facts), 0);
    return static_cast<std::uint64_t>(facts.st_blocks) * 512;
}

TEST_F(Holes, ALargeSparseImageTakesNeitherTimeNorRoom) {
    const std::uint64_t size = 8000 * kMb;
    simulator::Disk::create(worldFolder() / "disks" / "hdd4", "hdd4:", 10000, true);
    makeImage("big.iso", "SLUS_123.45", size);
    fs::resize_file(folder() / "big.iso", size + 5); // a tail that is no whole block
    ASSERT_EQ(run({"inject_dvd", "hdd4:", "Big", "big.iso"}).exitCode, 0);
    ASSERT_EQ(run({"extract", "hdd4:", "Big", "back.iso"}).exitCode, 0);
    EXPECT_EQ(fs::file_size(folder() / "back.iso"), size + 5);
    EXPECT_EQ(disk("hdd4").usedMb(), 8064);
    EXPECT_LT(roomOf(folder() / "back.iso"), 10 * kMb);
    EXPECT_LT(roomOf(gamesFolder("hdd4") / "1.image"), 10 * kMb);
}

} // namespace

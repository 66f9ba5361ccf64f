#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

/// An image with holes, which not every system reads as fast as it makes them.
class HugeImage : public WholeProgram {};

TEST_F(HugeImage, OfNineGigabytesIsADualLayerDvd) {
    makeImage();
    ASSERT_TRUE(QFile::resize(bench.path("game.iso"), 9LL << 30)); // takes no room
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameSize"), "9.00GB");
        EXPECT_EQ(user.text("cmbType"), "DVD-ROM");
        EXPECT_TRUE(user.shown("lblDVD9"));
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD").last(), "HARVEST | SLUS_999.99 | 9.00GB | DVD | ");
    });
}

} // namespace
} // namespace tarnwell::test

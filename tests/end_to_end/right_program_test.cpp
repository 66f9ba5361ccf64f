#include "end_to_end/whole_program.h"

#include <QFileInfo>

namespace tarnwell::test {
namespace {

/// A program whose name is the beginning of the path to the tool.
class RightProgram : public WholeProgram {
protected:
    RightProgram() : WholeProgram("my PS2 tools") {
        for (const char* name : {"/my", "/my.exe", "/my PS2", "/my PS2.exe"})
            EXPECT_TRUE(QFile::copy(bench.tool(), besideTheFolder_ + name));
    }
    /// Every simulated tool makes its world when it runs.
    bool otherHasRun() const { return QFileInfo::exists(besideTheFolder_ + "/tarnwell-simulator"); }

private:
    const QString besideTheFolder_ = QFileInfo(bench.folder()).path();
};

TEST_F(RightProgram, RunsWhateverElseItsPathBeginsWith) {
    makeImage();
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameStartup"), "SLUS_999.99");
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST"));
    });
    EXPECT_FALSE(otherHasRun());
    EXPECT_TRUE(extract("hdd1:", "HARVEST") == contents(bench.path("game.iso")));
}

} // namespace
} // namespace tarnwell::test

#include "end_to_end/program_folders.h"
#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class Install : public WholeProgram {
protected:
    using WholeProgram::WholeProgram;

    /// What another program has made comes back from the disk byte for byte. Not compared as texts: a
    /// difference would print millions of bytes.
    void expectGame(const QString& device, const QString& game, const QString& image) const {
        EXPECT_TRUE(extract(device, game) == contents(image)) << "the game on the disk is not the image";
    }
};

TEST_F(Install, AnImageGoesToTheDiskByteForByte) {
    const QString image = makeImage();
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
        EXPECT_EQ(user.text("txtGameStartup"), "SLUS_999.99");
        EXPECT_EQ(user.text("cmbType"), "CD-ROM");
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_EQ(user.rows("lstHD").last(), "HARVEST | SLUS_999.99 | 0.00GB | CD | ");
        EXPECT_EQ(user.text("fmBrowse"), "Browse, Backup, and Delete - 4 Games");
        EXPECT_EQ(user.text("txtISO"), "");
    });
    expectGame("hdd1:", "HARVEST", image);
}

TEST_F(Install, AnImageGoesToAConsole) {
    const QString image = makeImage();
    play([&](User& user) {
        openConsole(user);
        EXPECT_TRUE(user.rows("lstHD").first().startsWith("Glass Orchard"));
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD").last(), "HARVEST | SLUS_999.99 | 0.00GB | CD | ");
    });
    expectGame("127.0.0.1", "HARVEST", image);
}

TEST_F(Install, ADiscInADriveGoesToTheDisk) {
    const QString image = makeImage();
    write(bench.path("tarnwell-simulator/drives/cd0.ini"), "image = " + image.toLocal8Bit() + "\n");
    play([&](User& user) {
        openDisk(user);
        user.click("optOptical");
        user.waitUntilIdle();
        ASSERT_FALSE(user.entries("cmbOptical").isEmpty());
        user.choose("cmbOptical", 0);
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
        EXPECT_TRUE(user.enabled("cmdMakeISO"));
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST | SLUS_999.99"));
    });
    expectGame("hdd1:", "HARVEST", image);
}

TEST_F(Install, TheNameAndTheFlagsAreTheUsers) {
    const QString image = makeImage();
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        user.type("txtGameName", "Harvest & Home 2");
        user.click("cmdCompat");
        user.clickMenuEntry("mnuFlags(2)");
        user.clickMenuEntry("mnuFlags(7)");
        user.clickMenuEntry("mnuDone");
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstHD").last(), "Harvest & Home 2 | SLUS_999.99 | 0.00GB | CD | +3+8");
    });
    expectGame("hdd1:", "Harvest & Home 2", image);
}

class InstallFromAFolder : public Install, public testing::WithParamInterface<QString> {
protected:
    InstallFromAFolder() : Install(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(, InstallFromAFolder, testing::ValuesIn(programFolders()));

TEST_P(InstallFromAFolder, ToolImageAndSettingsAreFound) {
    const QString image = makeImage("my first game.iso", "");
    play([&](User& user) {
        openDisk(user);
        user.click("chkOutput");
        pickImage(user, "my first game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameStartup"), "SLUS_999.99");
        user.type("txtGameName", "My first game");
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("My first game | SLUS_999.99"));
    });
    EXPECT_TRUE(contents(bench.path("config.cfg")).contains("ViewOutput=1"));
    expectGame("hdd1:", "My first game", image);
}

TEST_F(Install, AGameThatDoesNotFitIsRefusedBeforeAnythingStarts) {
    makeImage();
    play([&](User& user) {
        user.click("optLocal");
        user.waitUntilIdle();
        user.choose("cmbHD", 1);
        user.click("cmdAttach");
        user.waitUntilIdle();
        QFile::resize(bench.path("game.iso"), 700LL << 20);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        user.click("cmdInstall");
        const QString text = user.confirmMessage();
        EXPECT_TRUE(text.contains("space")) << text.toStdString();
        user.waitUntilIdle();
    });
    EXPECT_EQ(logged("inject"), "");
}

} // namespace
} // namespace tarnwell::test

#include "end_to_end/whole_program.h"

#include <QDir>

namespace tarnwell::test {
namespace {

const QString kDevices = QStringLiteral("frmSettings.cmbHD");

class DiskTools : public WholeProgram {
protected:
    static void openTools(User& user) {
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.selectTab("TabStrip", ui::FrmSettings::kToolsTab);
        user.click("cmdRefresh");
        user.waitUntilIdle();
    }
};

TEST_F(DiskTools, AnUnformattedDiskIsFormattedAfterOneQuestion) {
    play([&](User& user) {
        openTools(user);
        EXPECT_TRUE(user.entries(kDevices)[2].endsWith(" - Unknown Format"));
        user.choose(kDevices, 2);
        user.click("cmdFormat");
        EXPECT_TRUE(user.agree().contains("hdd3:"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.entries(kDevices)[2].endsWith(" - Playstation2 Formatted"));
    });
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd3:"}).startsWith("type"));
}

TEST_F(DiskTools, ASavedTableBringsADeletedGameBack) {
    const QString file = bench.path("my disk.toc");
    play([&](User& user) {
        openTools(user);
        user.choose(kDevices, 0);
        user.click("cmdBackupTOC");
        user.pickFile(file);
        user.waitUntilIdle();
        EXPECT_FALSE(contents(file).isEmpty());

        bench.run({"delete", "hdd1:", "Lantern"});
        user.click("cmdRestoreTOC");
        user.agree();
        user.pickFile(file);
        user.waitUntilIdle();
    });
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd1:"}).contains("Lantern"));
}

TEST_F(DiskTools, ASavedTableStaysIfTheToolHasGone) {
    const QString file = bench.path("my disk.toc");
    play([&](User& user) {
        openTools(user);
        user.choose(kDevices, 0);
        user.click("cmdBackupTOC");
        user.pickFile(file);
        user.waitUntilIdle();
        const QByteArray saved = contents(file);
        EXPECT_FALSE(saved.isEmpty());

        QFile::remove(bench.tool());
        user.click("cmdBackupTOC");
        user.pickFile(file);
        user.agree();
        user.waitUntilIdle();
        EXPECT_EQ(contents(file), saved);
    });
    EXPECT_EQ(QDir(bench.folder()).entryList({"my disk*"}), QStringList("my disk.toc"));
}

TEST_F(DiskTools, NothingIsFormattedAsLongAsNothingIsChosen) {
    bench.run({"query"});
    for (const char* disk : {"hdd1", "hdd2", "hdd3"})
        QDir(bench.path("tarnwell-simulator/disks/") + disk).removeRecursively();
    play([&](User& user) {
        openTools(user);
        EXPECT_EQ(user.entries(kDevices), QStringList("192.168.0.10"));
        user.click("cmdFormat");
        EXPECT_EQ(user.confirmMessage(), "Please select a device from the list first.");
        user.waitUntilIdle();
    });
    EXPECT_EQ(logged("initialize"), "");
}

TEST_F(DiskTools, TheListCannotBeAskedForTwiceAtATime) {
    play([&](User& user) {
        openTools(user);
        const QStringList devices = user.entries(kDevices);
        bench.behave("[query]\nstart_delay_ms = 500\n");
        user.click("cmdRefresh");
        EXPECT_FALSE(user.enabled("cmdRefresh"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.enabled("cmdRefresh"));
        EXPECT_EQ(user.entries(kDevices), devices);
    });
}

} // namespace
} // namespace tarnwell::test

#include "end_to_end/whole_program.h"

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

} // namespace
} // namespace tarnwell::test

#include "end_to_end/whole_program.h"

#include <QDir>

namespace tarnwell::test {
namespace {

/// A program that cannot write beside itself: what stands in the place of its settings is a folder.
class ReadOnlySettings : public WholeProgram {
protected:
    ReadOnlySettings() {
        for (const char* folder : {"config.cfg", "data", "elsewhere"})
            EXPECT_TRUE(QDir(bench.folder()).mkdir(folder));
        QDir::setCurrent(bench.path("elsewhere"));
    }
    ~ReadOnlySettings() override { QDir::setCurrent(before_); }

    const QString data_ = bench.path("data");

private:
    const QString before_ = QDir::currentPath();
};

TEST_F(ReadOnlySettings, AreToldAtTheStartAndTheToolsOwnAreKeptAllTheSame) {
    DesktopProgram program{QtSystemFolders(bench.folder(), data_)};
    const auto scenario = [&](User& user) {
        EXPECT_TRUE(user.confirmMessage().startsWith(bench.path("config.cfg") + " cannot be written: "));
        openDisk(user);
        EXPECT_EQ(user.rows("lstHD").size(), 3);
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.selectTab("TabStrip", ui::FrmSettings::kTarnwellTab);
        EXPECT_EQ(user.text("txtApplicationData"), data_ + QDir::separator());
        user.click("frmSettings.chkEnableASPI");
        user.click("frmSettings.cmdExit");
        user.waitUntilIdle();
        EXPECT_FALSE(user.messageUp());
    };
    EXPECT_EQ(tour::runWithUser(program, scenario), "");
    EXPECT_TRUE(contents(data_ + "/tarnwell.conf").contains("\"enable_aspi\" = \"no\""));
    EXPECT_TRUE(QDir(bench.path("elsewhere")).isEmpty());
}

} // namespace
} // namespace tarnwell::test

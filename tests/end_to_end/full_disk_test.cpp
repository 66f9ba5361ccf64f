#include "end_to_end/whole_program.h"
#include "support/full_disk.h"

#include <QDir>

namespace tarnwell::test {
namespace {

class ListOnAFullDisk : public WholeProgram {};

class SettingsOnAFullDisk : public WholeProgram {
protected:
    static void openSettings(User& user, int tab) {
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.selectTab("TabStrip", tab);
    }
    QByteArray stored(const char* file) const { return contents(bench.path(file)); }
};

TEST_F(SettingsOnAFullDisk, TheProgramsOwnKeepTheirOldValues) {
    play([&](User& user) {
        openSettings(user, ui::FrmSettings::kGuiTab);
        const QByteArray before = stored("config.cfg");
        {
            const FullDisk full;
            user.click("frmSettings.chkStatusServer");
            user.waitUntilIdle();
        }
        EXPECT_TRUE(stored("config.cfg") == before);
        EXPECT_FALSE(before.isEmpty());

        user.click("frmSettings.chkStatusServer");
        user.click("frmSettings.chkStatusServer");
        user.waitUntilIdle();
        EXPECT_TRUE(stored("config.cfg").contains("StatusServer=1")) << "with room again it is stored";
    });
}

TEST_F(ListOnAFullDisk, TheOldOneStandsAsItWas) {
    const QString file = bench.path("games.txt");
    write(file, "an old list");
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.click("cmdSaveList");
        user.pickFile(file);
        user.agree();
        {
            const FullDisk full;
            user.answer("%type");
            user.waitUntilIdle();
        }
    });
    EXPECT_EQ(contents(file), "an old list");
    EXPECT_EQ(QDir(bench.folder()).entryList({"games*"}), QStringList("games.txt"));
}

TEST_F(SettingsOnAFullDisk, TheToolsFileStandsAsItWasAndTheUserIsTold) {
    write(bench.path("tarnwell.conf"), "[tarnwell]\r\n");
    play([&](User& user) {
        openSettings(user, ui::FrmSettings::kTarnwellTab);
        const QByteArray before = stored("tarnwell.conf");
        {
            const FullDisk full;
            user.click("frmSettings.cmdExit");
            EXPECT_TRUE(user.confirmMessage().contains("could not be written"));
            user.waitUntilIdle();
        }
        EXPECT_TRUE(stored("tarnwell.conf") == before);
    });
}

} // namespace
} // namespace tarnwell::test

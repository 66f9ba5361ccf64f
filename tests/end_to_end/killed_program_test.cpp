#include "end_to_end/whole_program.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

namespace tarnwell::test {
namespace {

constexpr char kFolder[] = "TARNWELL_TEST_FOLDER";

class KilledProgram : public WholeProgram {
protected:
    /// Starts another process that installs a game, and kills it in the middle.
    void killInTheMiddleOfAnInstall() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kFolder, bench.folder());
        QProcess other;
        other.setProcessEnvironment(environment);
        other.setStandardOutputFile(QProcess::nullDevice());
        other.start(QCoreApplication::applicationFilePath(),
                    {"--gtest_also_run_disabled_tests", "--gtest_filter=ProgramToBeKilled.DISABLED_*"});
        ASSERT_TRUE(other.waitForStarted());
        EXPECT_TRUE(comesTrue([&] { return bench.log().contains("> inject_cd"); }));
        other.kill();
        other.waitForFinished();
        EXPECT_EQ(other.exitStatus(), QProcess::CrashExit);
    }
};

/// What is killed: to be run by the test below in a process of its own, in the folder that the environment
/// names. It has no bench, which would outlive it.
TEST(ProgramToBeKilled, DISABLED_InstallsAGame) {
    const QString folder = qEnvironmentVariable(kFolder);
    ASSERT_FALSE(folder.isEmpty());
    DesktopProgram program{QtSystemFolders(folder, folder)};
    EXPECT_EQ(tour::runWithUser(program,
                                [&](User& user) {
                                    WholeProgram::openDisk(user);
                                    user.click("cmdISO");
                                    user.pickFile(folder + "/game.iso");
                                    user.waitUntilIdle();
                                    user.click("cmdSettings");
                                    user.waitFor("the settings window",
                                                 [&] { return user.windowUp("frmSettings"); });
                                    user.selectTab("TabStrip", ui::FrmSettings::kGuiTab);
                                    user.click("frmSettings.chkBalloonTips");
                                    user.click("frmSettings.cmdExitNoSave");
                                    user.waitUntilIdle();
                                    WholeProgram::startInstall(user);
                                    user.waitUntilIdle();
                                }),
              "");
}

TEST_F(KilledProgram, LosesNoSettingAndTheToolFinishesTheGame) {
    makeImage();
    bench.behave("[inject_cd]\ndelay_ms_per_step = 20\n");
    write(bench.path("tarnwell.conf"), "[tarnwell]\r\nkept=yes\r\n");
    killInTheMiddleOfAnInstall();
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST")) << "killed too late";

    const QByteArray settings = contents(bench.path("config.cfg"));
    EXPECT_TRUE(settings.contains("BalloonTips=1"));
    EXPECT_TRUE(contents(bench.path("tarnwell.conf")).contains("kept=yes"));
    EXPECT_TRUE(comesTrue([&] { return bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST"); }));
    play([&](User& user) {
        EXPECT_TRUE(user.windowUp("frmMain"));
        EXPECT_FALSE(user.windowUp("frmStatus"));
        openDisk(user);
        EXPECT_EQ(user.rows("lstHD").size(), 4);
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
    EXPECT_TRUE(contents(bench.path("config.cfg")) == settings);
    EXPECT_EQ(QDir(bench.folder()).entryList({"config.cfg.*", "tarnwell.conf.*"}), QStringList());
    EXPECT_TRUE(extract("hdd1:", "HARVEST") == contents(bench.path("game.iso")));
}

} // namespace
} // namespace tarnwell::test

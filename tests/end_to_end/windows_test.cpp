#include "end_to_end/whole_program.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace tarnwell::test {
namespace {

class Windows : public WholeProgram {
protected:
    void startSlowInstall(User& user) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\ndelay_ms_per_step = 25\n");
        startInstall(user);
        waitForPercent(user, 20);
    }

    const QString image = makeImage();
};

TEST_F(Windows, ClosingTheMainWindowDuringAnInstallEndsTheProgramAndTheToolFinishesTheGame) {
    play([&](User& user) {
        startSlowInstall(user);
        user.bringBack("frmMain");
        user.closeWindow("frmMain");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_FALSE(bench.log().contains("< failed"));
    });
    ASSERT_TRUE(comesTrue([&] { return bench.log().count("< done") > bench.log().count("> query") + 2; }))
        << bench.log().toStdString();
    EXPECT_TRUE(extract("hdd1:", "HARVEST") == contents(image));
}

TEST_F(Windows, TheStatusWindowCannotBeClosedDuringAnInstallButMinimises) {
    play([&](User& user) {
        startSlowInstall(user);
        user.closeWindow("frmStatus");
        user.waitFor("the status window to minimise", [&] { return !user.windowUp("frmStatus"); });
        user.waitFor("progress in its title",
                     [&] { return user.text("frmStatus").contains("% Complete ["); });
        user.bringBack("frmStatus");
        EXPECT_TRUE(user.windowUp("frmStatus"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST"));
    });
}

TEST_F(Windows, HidingWithoutATrayMinimises) {
    play([&](User& user) {
        user.click("cmdMinimize");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look([&] { return user.program().mainWindow().isMinimized(); }));
        user.bringBack("frmMain");
        EXPECT_TRUE(user.windowUp("frmMain"));
        user.click("optBrowse");
        user.waitUntilIdle();
        EXPECT_TRUE(user.shown("lstHD"));
    });
}

TEST_F(Windows, ExitEndsTheProgram) {
    play([&](User& user) {
        user.click("cmdExit");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
    });
}

/// A display that nobody looks at.
class InvisibleDisplay {
public:
    InvisibleDisplay() {
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
        while (!number_.endsWith('\n') && server_.waitForReadyRead(30'000))
            number_ += server_.readAllStandardOutput();
    }
    ~InvisibleDisplay() {
        server_.terminate();
        server_.waitForFinished();
    }
    InvisibleDisplay(const InvisibleDisplay&) = delete;
    InvisibleDisplay& operator=(const InvisibleDisplay&) = delete;

    QString name() const { return ':' + number_.trimmed(); }
    bool shows(const QString& title) const {
        return tour::runToEnd("xwininfo", {"-display", name(), "-root", "-tree"}).contains(title);
    }

private:
    QProcess server_;
    QByteArray number_;
};

/// The program's own file, started as a user would start it.
TEST(Executable, OpensItsWindowAndEndsWhenTheSystemAsksItTo) {
    if (QStandardPaths::findExecutable("Xvfb").isEmpty() ||
        QStandardPaths::findExecutable("xwininfo").isEmpty())
        GTEST_SKIP() << "needs Xvfb and xwininfo";
    const Workbench bench;
    const QString copy = bench.path("tarnwell-gui");
    ASSERT_TRUE(QFile::copy(tour::builtProgram("tarnwell-gui"), copy));
    const InvisibleDisplay display;

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display.name());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(copy);
    ASSERT_TRUE(program.waitForStarted());
    EXPECT_TRUE(comesTrue([&] { return display.shows("Tarnwell GUI v1.5"); }));
    EXPECT_TRUE(QFile::exists(bench.path("config.cfg")));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished()) << "the program did not end";
}

} // namespace
} // namespace tarnwell::test

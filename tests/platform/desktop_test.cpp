#include "platform/desktop_ports.h"
#include "platform/helpers.h"
#include "platform/posix/posix_power.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>

namespace tarnwell {
namespace {

double pixelsPerTwip() {
    return 1.0 / 15;
}

TEST(DesktopPorts, TheComposedPortsWorkTogether) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip);
    const Ports ports = desktop.ports();
    test::runProgram(desktop.pump, [&] {
        const auto child = ports.launcher.start(test::childCommand("bytes 3"));
        ASSERT_TRUE(child);
        EXPECT_TRUE(ports.processes.exists(child->processId()));
        const qint32 start = ports.clock.tickCount();
        ports.pump.pumpFor(20);
        EXPECT_GE(ports.clock.tickCount() - start, 19);
        ports.pump.end();
        EXPECT_THROW(ports.dialogs.message("text", MessageIcon::Stop, "title"), ProgramEnded);
    });
}

TEST(SystemFolders, TheProgramFolderIsThatOfTheRunningProgram) {
    const QtSystemFolders folders;
    EXPECT_TRUE(QFileInfo(folders.programFolder() + "/child_helper").isFile());
    EXPECT_FALSE(folders.programFolder().endsWith(u'/'));
}

TEST(SystemFolders, TheCommandInterpreterIsAProgram) {
    EXPECT_TRUE(QFileInfo(QtSystemFolders().commandInterpreter()).isExecutable());
}

#ifndef Q_OS_WIN
TEST(SystemFolders, TheFolderForSettingsIsMadeOnFirstUse) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", (home.path() + "/new/config").toLocal8Bit());
    const QString folder = QtSystemFolders().applicationData();
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
    EXPECT_EQ(folder, home.path() + "/new/config");
    EXPECT_TRUE(QFileInfo(folder).isDir());
}
#endif

TEST(WindowManager, TheScreenIsMeasuredInTheTwipsOfTheWindows) {
    const QSize pixels = QGuiApplication::primaryScreen()->availableSize();
    double scale = 1.0 / 15;
    const QtWindowManager windows([&] { return scale; });
    EXPECT_EQ(windows.screenSize().width, pixels.width() * 15);
    EXPECT_EQ(windows.screenSize().height, pixels.height() * 15);
    scale = 1.0 / 10;
    EXPECT_EQ(windows.screenSize().width, pixels.width() * 10) << "the user may change the font";
}

TEST(Processes, AProcessIsAskedToEndAndMayBeWatched) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip);
    const auto child = test::startChild("hang");
    ASSERT_TRUE(child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    EXPECT_TRUE(desktop.processes->exists(child->processId()));
    EXPECT_TRUE(desktop.processes->requestClose(child->processId()));
    ASSERT_TRUE(test::pumpUntil([&] { return !child->running(); }));
    EXPECT_FALSE(desktop.processes->exists(child->processId()));
    EXPECT_FALSE(desktop.processes->requestClose(child->processId())) << "it has gone";
}

TEST(Processes, WhatIsNoSingleProcessIsLeftAlone) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip);
    for (const qint64 none :
         {std::numeric_limits<qint64>::min(), qint64{-1}, qint64{0}, qint64{1},
          qint64{std::numeric_limits<qint32>::max()} + 1, std::numeric_limits<qint64>::max()}) {
        EXPECT_FALSE(desktop.processes->requestClose(none)) << none;
        EXPECT_FALSE(desktop.processes->exists(none)) << none;
    }
}

TEST(Tray, WithoutATrayEveryCallDoesNothing) {
    QtTray tray{QIcon()};
    EXPECT_FALSE(tray.available());
    tray.add("Tarnwell GUI");
    tray.setTip("50%");
    tray.showBalloon("Tarnwell GUI", "Job added to job queue");
    tray.remove();
    QtEventPump().pump();
}

TEST(Tray, TheGesturesOfTheUserAreReported) {
    QtTray tray{QIcon()};
    QStringList reported;
    tray.doubleClicked = [&] { reported += "double"; };
    tray.rightClicked = [&] { reported += "right"; };
    tray.activated(QSystemTrayIcon::DoubleClick);
    tray.activated(QSystemTrayIcon::Context);
    tray.activated(QSystemTrayIcon::MiddleClick);
    EXPECT_EQ(reported, QStringList({"double", "right"}));
}

TEST(Tray, AHostThatTellsNoClicksButThatTheProgramIsWantedIsObeyed) {
    QtTray tray{QIcon()};
    int wanted = 0;
    tray.doubleClicked = [&] { ++wanted; };
    tray.activated(QSystemTrayIcon::Trigger);
    EXPECT_EQ(wanted, 1);
}

TEST(Tray, GesturesThatNobodyListensToAreIgnored) {
    QtTray tray{QIcon()};
    tray.activated(QSystemTrayIcon::DoubleClick);
    tray.activated(QSystemTrayIcon::Context);
}

/// A power command that only writes down how it was called.
class FakePowerCommand {
public:
    explicit FakePowerCommand(const QString& name) : path_(folder_.filePath(name)) {
        QFile script(path_);
        EXPECT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\n"
                     "if read -r word; then echo \"input: $word\" >> \"$0.new\"; fi\n"
                     "echo \"noise\"; echo \"noise\" >&2\n"
                     "echo \"$*\" > \"$0.new\"\n"
                     "/bin/mv \"$0.new\" \"$0.called\"\n");
        script.close();
        EXPECT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    QString path() const { return path_; }
    QString folder() const { return folder_.path(); }

    /// Waits for the next call and tells its arguments.
    QByteArray called() const {
        QFile file(path_ + ".called");
        EXPECT_TRUE(test::pumpUntil([&] { return file.exists(); }));
        const QByteArray arguments = file.open(QFile::ReadOnly) ? file.readAll().trimmed() : QByteArray();
        file.remove();
        return arguments;
    }

private:
    QTemporaryDir folder_;
    QString path_;
};

TEST(Power, BothCommandsAreStartedWithoutAWait) {
    const FakePowerCommand command("fake-power");
    PosixPower power(command.path());
    power.shutDown();
    EXPECT_EQ(command.called(), "poweroff -i");
    power.standBy();
    EXPECT_EQ(command.called(), "suspend");
}

TEST(Power, AMissingCommandGoesUnnoticed) {
    const QTemporaryDir folder;
    PosixPower power(folder.filePath("missing"));
    EXPECT_NO_THROW(power.shutDown());
    EXPECT_NO_THROW(power.standBy());
}

/// In a program of its own, which finds nothing but the fake.
TEST(Power, TheSystemsServiceManagerIsFoundByItsName) {
    const FakePowerCommand command("systemctl");
    for (const auto& [act, arguments] :
         {std::pair{"shut-down", "poweroff -i"}, std::pair{"stand-by", "suspend"}}) {
        QProcess program;
        QProcessEnvironment environment;
        environment.insert("PATH", command.folder());
        program.setProcessEnvironment(environment);
        program.start(test::builtProgram("program_helper"), {act, command.folder()});
        ASSERT_TRUE(program.waitForFinished(test::kPatienceMs));
        ASSERT_EQ(program.exitCode(), 0);
        EXPECT_EQ(command.called(), arguments);
    }
}

} // namespace
} // namespace tarnwell

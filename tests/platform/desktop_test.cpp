#include "platform/helpers.h"
#include "platform/qt/desktop_ports.h"
#include "platform/system_helpers.h"
#include "support/gtest_qt.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <limits>

namespace tarnwell {
namespace {

double pixelsPerTwip() {
    return 1.0 / 15;
}

QColor toColor(std::int32_t) {
    return Qt::black;
}

TEST(DesktopPorts, TheComposedPortsWorkTogether) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip, toColor);
    const Ports ports = desktop.ports();
    test::runProgram(desktop.pump, [&] {
        QString whyNot;
        const auto child = ports.launcher.start(test::childCommand("bytes 3"), whyNot);
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
    const QString helper = test::native(test::builtProgram("child_helper"));
    EXPECT_EQ(folders.programFolder(), helper.left(helper.lastIndexOf(QDir::separator())));
}

TEST(SystemFolders, APathOfTheCodePageIsWrittenAsItIs) {
    const QString path = QDir::toNativeSeparators(QDir::tempPath() + '/');
    EXPECT_EQ(QtSystemFolders().pathInCodePage(path), path);
    EXPECT_EQ(QtSystemFolders().pathInCodePage(QString(QChar(0xD800))), "") << "half a character";
}

TEST(SystemFolders, TheCommandInterpreterIsAProgram) {
    EXPECT_TRUE(QFileInfo(QtSystemFolders().commandInterpreter()).isExecutable());
}

TEST(WindowManager, TheScreenIsMeasuredInTheTwipsOfTheWindows) {
    const QSize pixels = QGuiApplication::primaryScreen()->availableSize();
    double scale = 1.0 / 15;
    const QtWindowManager windows([&] { return scale; });
    EXPECT_EQ(windows.screenSize().width, pixels.width() * 15);
    EXPECT_EQ(windows.screenSize().height, pixels.height() * 15);
    scale = 1.0 / 10;
    EXPECT_EQ(windows.screenSize().width, pixels.width() * 10) << "the user may change the font";
}

TEST(Processes, AProcessExistsUntilItHasEnded) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip, toColor);
    const auto child = test::startChild("hang");
    ASSERT_TRUE(child);
    EXPECT_TRUE(desktop.processes->exists(child->processId()));
    test::endByForce(child->processId());
    EXPECT_TRUE(test::pumpUntil([&] { return !child->running(); }));
    EXPECT_FALSE(desktop.processes->exists(child->processId()));
    EXPECT_FALSE(desktop.processes->requestClose(child->processId()));
}

TEST(Processes, WhatIsNoSingleProcessIsLeftAlone) {
    DesktopPorts desktop(QIcon(), pixelsPerTwip, toColor);
    for (const qint64 none :
         {std::numeric_limits<qint64>::min(), qint64{-1}, qint64{0}, qint64{1},
          qint64{std::numeric_limits<qint32>::max()} + 1, std::numeric_limits<qint64>::max()}) {
        EXPECT_FALSE(desktop.processes->requestClose(none)) << none;
        EXPECT_FALSE(desktop.processes->exists(none)) << none;
    }
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

TEST(Tray, GesturesThatNobodyListensToAreIgnored) {
    QtTray tray{QIcon()};
    tray.activated(QSystemTrayIcon::DoubleClick);
    tray.activated(QSystemTrayIcon::Context);
}

} // namespace
} // namespace tarnwell

#include "platform/helpers.h"
#include "platform/posix/posix_power.h"
#include "platform/qt/qt_system_folders.h"
#include "platform/qt/qt_tray.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace tarnwell {
namespace {

TEST(SystemFolders, TheFolderForSettingsIsMadeOnFirstUse) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", (home.path() + "/new/config").toLocal8Bit());
    const QString folder = QtSystemFolders().applicationData();
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
    EXPECT_EQ(folder, home.path() + "/new/config");
    EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST(Processes, AProcessIsAskedToEndAndMayBeWatched) {
    const auto processes = native::makeProcesses();
    const auto child = test::startChild("hang");
    ASSERT_TRUE(child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    EXPECT_TRUE(processes->exists(child->processId()));
    EXPECT_TRUE(processes->requestClose(child->processId()));
    ASSERT_TRUE(test::pumpUntil([&] { return !child->running(); }));
    EXPECT_FALSE(processes->exists(child->processId()));
    EXPECT_FALSE(processes->requestClose(child->processId())) << "it has gone";
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
        QByteArray arguments = file.open(QFile::ReadOnly) ? file.readAll().trimmed() : QByteArray();
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

TEST(Tray, AHostThatTellsNoClicksButThatTheProgramIsWantedIsObeyed) {
    QtTray tray{QIcon()};
    int wanted = 0;
    tray.doubleClicked = [&] { ++wanted; };
    tray.activated(QSystemTrayIcon::Trigger);
    EXPECT_EQ(wanted, 1);
}

} // namespace
} // namespace tarnwell

#include "platform/helpers.h"
#include "platform/native.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_system_folders.h"
#include "platform/qt/qt_tray.h"
#include "platform/system_helpers.h"
#include "platform/windows/windows_power.h"
#include "platform/windows/windows_session.h"
#include "platform/windows/windows_taskbar_progress.h"
#include "support/gtest_qt.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

namespace tarnwell {
namespace {

TEST(SystemFolders, TheFolderForSettingsIsThatOfTheUsersProfile) {
    const QString folder = native::applicationData();
    EXPECT_EQ(folder, qEnvironmentVariable("APPDATA"));
    EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST(SystemFolders, TheProfileIsKnownByUserAndDrive) {
    const auto profile = native::windowsProfile();
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->userName, qEnvironmentVariable("USERNAME"));
    EXPECT_EQ(profile->windowsFolder.toLower(), qEnvironmentVariable("SYSTEMROOT").toLower());
}

TEST(SystemFolders, AFolderOutsideTheCodePageIsKnownByItsShortNameIfItHasOne) {
    const QTemporaryDir place;
    const QString folder =
        QDir::toNativeSeparators(
            place.filePath(QString::fromUtf8("\xd0\xae\xd0\xbb\xd0\xb8\xd1\x8f \xe3\x83\x9a\xe3\x83\xab"))) +
        '\\';
    ASSERT_TRUE(QDir().mkdir(folder));
    const QString name = QtSystemFolders().pathInCodePage(folder);
    EXPECT_EQ(QString::fromLocal8Bit(name.toLocal8Bit()), name);
    if (name.isEmpty())
        GTEST_SKIP() << "short names are switched off here";
    ASSERT_TRUE(QFile(folder + "tarnwell.conf").open(QIODevice::WriteOnly));
    EXPECT_TRUE(QFile::exists(name + "tarnwell.conf")) << "the separator stays";
}

TEST(Power, BothCommandsAreThoseOfTheSystem) {
    QStringList started;
    WindowsPower power("C:\\Windows\\system32", [&](const QString& program, const QString& arguments) {
        started += program + " | " + arguments;
    });
    power.shutDown();
    power.standBy();
    EXPECT_EQ(started, QStringList({"C:\\Windows\\system32\\shutdown.exe | -s -f -t 00",
                                    "C:\\Windows\\system32\\rundll32.exe | powrprof.dll,SetSuspendState"}));
}

TEST(Ping, ThisMachineAnswersItself) {
    constexpr quint32 kThisMachine = 0x7f000001;
    const auto reply = native::makePing()->sendEcho(kThisMachine, "hello", 500);
    EXPECT_EQ(reply.status, 0);
    EXPECT_GE(reply.roundTripMs, 0);
    EXPECT_LE(reply.roundTripMs, 500);
}

TEST(Ping, AnAddressThatNobodyCanHaveDoesNotAnswer) {
    constexpr quint32 kNobody = 0x00000001; // never leaves the machine
    EXPECT_NE(native::makePing()->sendEcho(kNobody, "hello", 500).status, 0);
}

/// Half a minute of silence.
QByteArray longWave() {
    constexpr int kRate = 8000, kSamples = 30 * kRate;
    QByteArray wave;
    const auto number = [&wave](quint32 value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            wave += static_cast<char>(value >> 8 * i & 0xff);
    };
    wave += "RIFF";
    number(kSamples + 36, 4);
    wave += "WAVEfmt ";
    number(16, 4);
    number(1, 2); // samples as they are
    number(1, 2); // one channel
    number(kRate, 4);
    number(kRate, 4);
    number(1, 2);
    number(8, 2);
    wave += "data";
    number(kSamples, 4);
    return wave + QByteArray(kSamples, '\x80');
}

TEST(Sound, NothingIsWaitedFor) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("ring.wav"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(longWave());
    file.close();
    const auto sound = native::makeSound();
    QElapsedTimer sinceStart;
    sinceStart.start();
    sound->play(test::native(file.fileName()));
    sound->play("C:\\missing.wav");
    sound->play(QString());
    sound->play(test::native(folder.path()));
    EXPECT_LT(sinceStart.elapsed(), 5000);
}

TEST(WakeLock, MayBeHeldAndReleasedAtAnyTimeAndLeavesNothingBehind) {
    const auto lock = native::makeWakeLock();
    lock->release();
    const int before = test::openHandles();
    for (int run = 0; run < 2; ++run) {
        lock->hold("Tarnwell GUI is working");
        lock->hold("Tarnwell GUI is working");
        lock->release();
        lock->release();
    }
    EXPECT_EQ(test::openHandles(), before);
}

TEST(Session, TheSystemHearsTheReasonAndIsAskedToWaitAsLongAsItIsHeldUp) {
    QWidget window;
    window.show();
    QStringList told;
    WindowsSession session(
        [&](HWND, const wchar_t* reason) { told += reason ? QString::fromWCharArray(reason) : "no more"; });
    int ends = 0;
    session.ending = [&] { ++ends; };
    const auto tell = [&](UINT message, WPARAM word) {
        return SendMessageW(reinterpret_cast<HWND>(window.winId()), message, word, 0);
    };
    EXPECT_EQ(tell(WM_QUERYENDSESSION, 0), TRUE);
    tell(WM_ENDSESSION, FALSE);
    session.holdUp("Work is under way");
    session.holdUp("again");
    EXPECT_EQ(tell(WM_QUERYENDSESSION, 0), FALSE);
    tell(WM_ENDSESSION, FALSE);
    EXPECT_EQ(ends, 0);
    tell(WM_ENDSESSION, TRUE);
    EXPECT_EQ(ends, 1);
    session.release();
    session.release();
    EXPECT_EQ(tell(WM_QUERYENDSESSION, 0), TRUE);
    EXPECT_EQ(told, QStringList({"Work is under way", "no more"}));
}

/// The system's own dialogs for files, which the other tests do without.
class SystemDialogs : public testing::Test {
protected:
    SystemDialogs() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }
    ~SystemDialogs() override { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
};

TEST_F(SystemDialogs, AreClosedByTheEndOfTheProgram) {
    using AskUser = std::function<void(QtDialogs&)>;
    for (const AskUser& ask : {AskUser([](QtDialogs& dialogs) { dialogs.openFile({}); }),
                               AskUser([](QtDialogs& dialogs) { dialogs.saveFile({}); }),
                               AskUser([](QtDialogs& dialogs) { dialogs.chooseFolder({}); })}) {
        QtEventPump pump;
        QtDialogs dialogs(pump, [](std::int32_t) { return QColor(); });
        bool ended = false;
        test::runProgram(pump, [&] {
            QTimer::singleShot(1000, qApp, [&] { pump.end(); });
            try {
                ask(dialogs);
            } catch (const ProgramEnded&) {
                ended = true;
            }
        });
        EXPECT_TRUE(ended);
    }
}

class TaskbarProgressTest : public testing::Test {
protected:
    TaskbarProgressTest() {
        main.show();
        status.show();
        test::pumpUntil([this] { return status.isVisible(); });
    }

    static HWND handleOf(const QWidget& window) { return reinterpret_cast<HWND>(window.winId()); }

    /// What the task bar does when it has made a button for a window.
    static void announceButton(const QWidget& window) {
        SendMessageW(handleOf(window), RegisterWindowMessageW(L"TaskbarButtonCreated"), 0, 0);
    }

    std::optional<int> on(const QWidget& window) const {
        const auto found = buttons.find(handleOf(window));
        return found == buttons.end() ? std::nullopt : found->second;
    }

    QWidget main, status;
    std::map<HWND, std::optional<int>> buttons;
    int drawings = 0;
    WindowsTaskbarProgress progress{[this](HWND window, std::optional<int> percent) {
        buttons[window] = percent;
        ++drawings;
    }};
};

TEST_F(TaskbarProgressTest, IsDrawnOnTheWindowsThatAreShown) {
    main.hide();
    QDialog dialog(&status);
    dialog.show();
    progress.show(40);
    EXPECT_EQ(on(status), 40);
    EXPECT_EQ(buttons.size(), 1u);
}

TEST_F(TaskbarProgressTest, AWindowThatIsShownAgainHasItToo) {
    main.hide();
    progress.show(40);
    main.show();
    announceButton(main);
    EXPECT_EQ(on(main), 40);
}

TEST_F(TaskbarProgressTest, EndsOnAllOfThem) {
    progress.show(40);
    progress.clear();
    EXPECT_EQ(on(main), std::nullopt);
    EXPECT_EQ(on(status), std::nullopt);
    const int before = drawings;
    announceButton(main);
    EXPECT_EQ(drawings, before) << "a new button has nothing on it";
}

TEST_F(TaskbarProgressTest, IsDrawnAnewOnlyWhenItChanges) {
    progress.show(40);
    const int before = drawings;
    progress.show(40);
    EXPECT_EQ(drawings, before);
    progress.show(41);
    EXPECT_EQ(on(main), 41);
    EXPECT_EQ(on(status), 41);
}

TEST_F(TaskbarProgressTest, ASystemWithoutTaskButtonsIsLeftAlone) {
    const auto real = native::makeTaskbarProgress();
    real->show(0);
    real->show(100);
    announceButton(main);
    real->clear();
}

TEST(Tray, ASingleClickIsNoWishToRestore) {
    QtTray tray{QIcon()};
    int wanted = 0;
    tray.doubleClicked = [&] { ++wanted; };
    tray.activated(QSystemTrayIcon::Trigger);
    EXPECT_EQ(wanted, 0);
}

} // namespace
} // namespace tarnwell

#include "logic/game_list_fixture.h"
#include "platform/posix/ordinary_user.h"
#include "support/full_disk.h"
#include "support/settings_test.h"

namespace tarnwell::test {
namespace {

constexpr auto kClosed = QFile::ReadOwner | QFile::ExeOwner;
constexpr auto kOpen = kClosed | QFile::WriteOwner;

/// A folder that takes no new files, though one in it may be written.
class ClosedFolder {
public:
    explicit ClosedFolder(const QString& path) : path_(path) {
        EXPECT_TRUE(QFile::setPermissions(path_, kClosed));
        EXPECT_FALSE(QFile(path_ + "/new").open(QFile::WriteOnly));
    }
    ~ClosedFolder() { EXPECT_TRUE(QFile::setPermissions(path_, kOpen)); }
    ClosedFolder(const ClosedFolder&) = delete;
    ClosedFolder& operator=(const ClosedFolder&) = delete;

private:
    const QString path_;
};

struct ExportIntoAClosedFolder : private OrdinaryUser, public GameListTest {
    ExportIntoAClosedFolder() {
        QDir().mkpath(path("lists"));
        list({"Lantern", "Fen"});
    }
    void exportTo(const QString& file) {
        ports.dialogs.saveFileAnswers.push_back(path(file));
        ports.dialogs.inputAnswers.push_back("");
        ui::click(frmMain.cmdSaveList);
    }
    QByteArray contents(const QString& file) const {
        QFile written(path(file));
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray("(no file)");
    }
};

TEST_F(ExportIntoAClosedFolder, AnOldListIsWrittenOver) {
    for (const QByteArray old : {"", "short", "an old list that is longer than the new one by quite a bit"}) {
        writeFile("lists/games.txt", old);
        const ClosedFolder closed(path("lists"));
        exportTo("lists/games.txt");
        EXPECT_EQ(contents("lists/games.txt"), "1. Lantern \r\n2. Fen     \r\n");
    }
}

TEST_F(ExportIntoAClosedFolder, AnOldListStandsIfThereIsNoRoomForTheNewOne) {
    writeFile("lists/games.txt", "an old list");
    const ClosedFolder closed(path("lists"));
    {
        const FullDisk full;
        exportTo("lists/games.txt");
    }
    EXPECT_EQ(contents("lists/games.txt"), "an old list");
}

/// As for a user who may start the program but is not its owner.
struct ClosedProgramFolder : private OrdinaryUser, public SettingsTest {
    ~ClosedProgramFolder() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
};

TEST_F(ClosedProgramFolder, TheUserIsToldOnceAndTheDataFolderIsUsed) {
    QDir::setCurrent(makeFolder("elsewhere"));
    const ClosedFolder closed(ports.folders.folder);
    startAndOpen();
    EXPECT_EQ(
        ports.dialogs.messageTexts(),
        QStringList(path("config.cfg") +
                    " cannot be written: what you change on the GUI page of Settings & Tools, the console's "
                    "address and the place of the tool's data will not be kept."));
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmSettings->txtApplicationData.text.get(), ports.folders.data + QDir::separator());
    ui::click(frmSettings->cmdExit);
    EXPECT_TRUE(readConf().contains("target_kbps"));
    EXPECT_EQ(QDir(path("elsewhere")).entryList(QDir::Files), QStringList());
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
}

TEST_F(ClosedProgramFolder, ASettingsFileThatMayBeWrittenKeepsSettings) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.0.0.1\r\n");
    const ClosedFolder closed(ports.folders.folder);
    start();
    EXPECT_TRUE(ports.dialogs.messages.empty());
    ui::type(frmMain.txtIP, "10.0.0.200");
    EXPECT_EQ(stored("IP"), "10.0.0.200");
    EXPECT_EQ(stored("ApplicationData"), ports.folders.data + QDir::separator());
}

TEST_F(ClosedProgramFolder, ASettingsFileThatMayOnlyBeReadIsToldToo) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.0.0.1\r\n");
    QFile::setPermissions(path("config.cfg"), QFile::ReadOwner);
    const ClosedFolder closed(ports.folders.folder);
    start();
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(frmMain.txtIP.text.get(), "10.0.0.1");
}

} // namespace
} // namespace tarnwell::test

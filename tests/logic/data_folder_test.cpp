#include "support/settings_test.h"

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

const QString kLocate = QStringLiteral(
    "Please locate your \"Application Data\" folder. If you feel as if you already selected the correct "
    "directory then try running a command with tarnwell so that the config file gets written.");
const QString kNotFound = QStringLiteral(
    "The tarnwell configuration file was not found in the selected directory. If you feel that you selected "
    "the correct directory and you still get this error message, try running tarnwell.exe from the command "
    "line so the config file will get written.");

struct DataFolderTest : SettingsTest {
    void choose(const QString& folder) {
        ports.dialogs.chooseFolderAnswers.push_back(folder);
        ui::click(frmSettings->cmdApplicationData);
    }
    QString enabledToolSettings() {
        QString bits;
        for (const ui::Control* control : std::initializer_list<const ui::Control*>{
                 &frmSettings->chkAutoThrottle, &frmSettings->chkEnableASPI, &frmSettings->chkLimit28bit,
                 &frmSettings->chkUseCompression, &frmSettings->chkToxicOS, &frmSettings->txtTargetkbps,
                 &frmSettings->txtDiscDatabase})
            bits += control->enabled ? '1' : '0';
        return bits;
    }
    void expectFolder(const QString& folder) {
        EXPECT_EQ(stored("ApplicationData"), folder);
        EXPECT_EQ(frmSettings->txtApplicationData.text.get(), folder);
    }
};

/// A PC whose system names no folder. On the systems that tests run on, its paths are names with backslashes
/// in them.
struct WindowsProfileTest : DataFolderTest {
    const QString before = QDir::currentPath();

    WindowsProfileTest() {
        QDir::setCurrent(ports.folders.folder);
        ports.folders.data.clear();
        ports.folders.profile = WindowsProfile{.userName = "ann ", .windowsFolder = "C:\\WINDOWS"};
    }
    ~WindowsProfileTest() override { QDir::setCurrent(before); }

#ifdef Q_OS_WIN
    void SetUp() override {
        GTEST_SKIP() << "these folders are the system's own here";
    }
#endif

    static inline const QString kFirst = "C:\\Documents and Settings\\ann\\Application Data\\";
    /// As it is looked for where the name is not trimmed.
    static inline const QString kFirstUntrimmed = "C:\\Documents and Settings\\ann \\Application Data\\";
    static inline const QString kSecond = "C:\\Users\\ann\\AppData\\Roaming\\";
    static inline const QString kTitle = "Locate C:\\Documents and Settings\\ann \\Application Data";
};

} // namespace

TEST_F(DataFolderTest, IsTheSystemsOwnAtTheFirstStart) {
    start();
    expectFolder(ports.folders.data + QDir::separator());
    EXPECT_TRUE(QFile::exists(conf()));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DataFolderTest, AStoredFolderWithTheFileStands) {
    const QString folder = makeFolder("mine", true);
    writeFile("config.cfg", "[tarnwell]\r\nApplicationData=" + folder.toLocal8Bit() + "\r\n");
    start();
    expectFolder(folder);
    EXPECT_FALSE(QFile::exists(conf()));
}

TEST_F(DataFolderTest, AStoredFolderWithoutTheFileIsReplacedSilently) {
    const QString folder = makeFolder("mine");
    writeFile("config.cfg", "[tarnwell]\r\nApplicationData=" + folder.toLocal8Bit() + "\r\n");
    start();
    expectFolder(ports.folders.data + QDir::separator());
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DataFolderTest, AStoredFolderStandsEvenIfTheSystemNamesNone) {
    const QString folder = makeFolder("mine", true);
    writeFile("config.cfg", "[tarnwell]\r\nApplicationData=" + folder.toLocal8Bit() + "\r\n");
    ports.folders.data.clear();
    start();
    expectFolder(folder);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DataFolderTest, AFolderOutsideTheCodePageIsKnownByItsOtherName) {
    const QString shortName = makeFolder("ULIA~1");
    ports.folders.namesInCodePage[ports.folders.data + QDir::separator()] = shortName;
    startAndOpen();
    expectFolder(shortName);
    store("ApplicationData", "");
    ui::click(frmSettings->cmdDefaults);
    expectFolder(shortName);
    EXPECT_TRUE(ports.dialogs.messageTexts().isEmpty());
}

TEST_F(DataFolderTest, AFolderOutsideTheCodePageIsNoneIfItHasNoOtherName) {
    ports.folders.namesInCodePage[ports.folders.data + QDir::separator()] = QString();
    const QString folder = makeFolder("mine", true);
    ports.dialogs.chooseFolderAnswers.push_back(folder);
    start();
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kLocate));
    expectFolder(folder);
}

TEST_F(DataFolderTest, AChosenFolderOutsideTheCodePageIsKnownByItsOtherNameOrNotTaken) {
    startAndOpen();
    const QString chosen = makeFolder("chosen", true), shortName = makeFolder("CHOSEN~1", true);
    ports.folders.namesInCodePage[chosen] = shortName;
    choose(chosen);
    expectFolder(shortName);
    ports.folders.namesInCodePage[chosen] = QString();
    choose(chosen);
    EXPECT_TRUE(lastMessage().startsWith(chosen + " cannot be used: "));
    EXPECT_EQ(enabledToolSettings(), "1111111");
    expectFolder(shortName);
}

TEST_F(DataFolderTest, TheUserIsAskedOnTheGuiPageIfThereIsNone) {
    const QString folder = makeFolder("mine", true);
    writeTo(folder + "tarnwell.conf", "target_kbps = 77\n");
    ports.folders.data.clear();
    ports.dialogs.chooseFolderAnswers.push_back(folder.chopped(1));
    start();
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kLocate));
    EXPECT_TRUE(frmSettings->shown());
    EXPECT_EQ(frmSettings->TabStrip.caption(), "GUI");
    EXPECT_TRUE(frmSettings->fmGUI.visible);
    EXPECT_FALSE(frmSettings->fmTarnwell.visible);
    expectFolder(folder);
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "77");
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(DataFolderTest, TheUserIsToldOnTheOpenPageBeforeThePickerComes) {
    ports.folders.data.clear();
    ports.dialogs.chooseFolderAnswers.push_back(makeFolder("mine", true));
    std::vector<std::size_t> messagesAndPickers;
    ports.dialogs.whileOpen = [&] {
        messagesAndPickers.push_back(ports.dialogs.messages.size());
        messagesAndPickers.push_back(ports.dialogs.chooseFolderRequests.size());
        EXPECT_TRUE(frmSettings.untouched().shown());
        EXPECT_TRUE(frmSettings.untouched().fmGUI.visible);
    };
    start();
    EXPECT_EQ(messagesAndPickers, (std::vector<std::size_t>{1, 0, 1, 1}));
}

TEST_F(DataFolderTest, ACancelledPickerChangesNothing) {
    start();
    open();
    const QString folder = stored("ApplicationData");
    ui::click(frmSettings->cmdApplicationData);
    expectFolder(folder);
    EXPECT_EQ(enabledToolSettings(), "1111111");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DataFolderTest, TheToolsSettingsAreReadFromAFolderAsSoonAsItIsChosen) {
    startAndOpen();
    const QString folder = makeFolder("mine", true);
    writeTo(folder + "tarnwell.conf", "target_kbps = 77\n");
    choose(folder);
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "77");
}

TEST_F(DataFolderTest, AFolderWithoutTheFileTurnsTheToolsSettingsOffUntilABetterChoice) {
    startAndOpen();
    const QString folder = stored("ApplicationData");
    choose(makeFolder("empty"));
    EXPECT_EQ(lastMessage(), kNotFound);
    EXPECT_EQ(enabledToolSettings(), "0000000");
    expectFolder(folder);
    ui::click(frmSettings->cmdExitNoSave);
    open();
    EXPECT_EQ(enabledToolSettings(), "0000000");
    choose(makeFolder("full", true));
    EXPECT_EQ(enabledToolSettings(), "1111111");
    expectFolder(path("full") + QDir::separator());
}

TEST_F(DataFolderTest, ThePickerStartsAtTheSystemsFolderWhereThereAreNoProfileForms) {
    startAndOpen();
    choose(makeFolder("full", true));
    ASSERT_EQ(ports.dialogs.chooseFolderRequests.size(), 1u);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].folder, ports.folders.data);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].title, "Locate " + ports.folders.data);
}

/// Nobody can write the settings of the program: what stands in their place is a folder.
struct UnwritableStore : DataFolderTest {
    UnwritableStore() {
        QDir().mkpath(path("config.cfg"));
        QDir::setCurrent(makeFolder("elsewhere"));
    }
    ~UnwritableStore() override { QDir::setCurrent(before); }

    QStringList strayFiles() const { return QDir(path("elsewhere")).entryList(QDir::Files); }

    const QString before = QDir::currentPath();
};

TEST_F(UnwritableStore, IsToldInOneSentenceBehindTheShownWindow) {
    ports.dialogs.whileOpen = [this] { EXPECT_TRUE(frmMain.shown()); };
    start();
    EXPECT_EQ(
        ports.dialogs.messageTexts(),
        QStringList(path("config.cfg") +
                    " cannot be written: what you change on the GUI page of Settings & Tools, the console's "
                    "address and the place of the tool's data will not be kept."));
}

TEST_F(UnwritableStore, TheFolderThatWasFoundServesThisRun) {
    writeConf("target_kbps = 77\n");
    startAndOpen();
    EXPECT_EQ(frmSettings->txtApplicationData.text.get(), ports.folders.data + QDir::separator());
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "77");
    ui::click(frmSettings->cmdDiskDatabase);
    EXPECT_EQ(ports.dialogs.openFileRequests.back().folder, ports.folders.data + QDir::separator());
    ui::click(frmSettings->cmdExit);
    EXPECT_TRUE(readConf().contains("\"target_kbps\" = \"77\"\n"));
    EXPECT_EQ(strayFiles(), QStringList());
}

TEST_F(UnwritableStore, AFolderThatTheUserShowsServesThisRun) {
    startAndOpen();
    const QString folder = makeFolder("mine", true);
    choose(folder);
    EXPECT_EQ(frmSettings->txtApplicationData.text.get(), folder);
    ui::click(frmSettings->cmdExit);
    EXPECT_TRUE(readFrom(folder + "tarnwell.conf").contains("target_kbps"));
    EXPECT_EQ(readConf(), "") << "the folder that was found first";
}

TEST_F(UnwritableStore, TheStoreCountsAgainAsSoonAsItTakesTheFolder) {
    startAndOpen();
    QDir().rmdir(path("config.cfg"));
    choose(makeFolder("mine", true));
    const QString byHand = makeFolder("by hand", true);
    store("ApplicationData", byHand);
    ui::click(frmSettings->cmdExit);
    EXPECT_TRUE(readFrom(byHand + "tarnwell.conf").contains("target_kbps"));
}

TEST_F(UnwritableStore, WithoutAnyFolderNothingIsWrittenAnywhere) {
    ports.folders.data.clear();
    start();
    EXPECT_EQ(ports.dialogs.messages.front().text, kLocate);
    writeFile("elsewhere/tarnwell.conf", "target_kbps = 5\n");
    ui::click(frmSettings->cmdExit);
    EXPECT_EQ(lastMessage(),
              "Tarnwell settings will not be saved because your Application Data folder has not "
              "been properly set.");
    EXPECT_EQ(readFrom(path("elsewhere/tarnwell.conf")), "target_kbps = 5\n");
    QFile::remove(path("elsewhere/tarnwell.conf"));
    open();
    EXPECT_EQ(strayFiles(), QStringList());
}

TEST_F(WindowsProfileTest, TheFirstFormComesBeforeTheSecond) {
    QDir().mkdir(kFirst);
    QDir().mkdir(kSecond);
    start();
    expectFolder(kFirst);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(WindowsProfileTest, AStoredFolderWithoutTheFileGivesWayToTheFirstFormSilently) {
    writeFile("config.cfg", "[tarnwell]\r\nApplicationData=" + makeFolder("mine").toLocal8Bit() + "\r\n");
    QDir().mkdir(kFirst);
    start();
    expectFolder(kFirst);
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.dialogs.chooseFolderRequests.empty());
}

TEST_F(WindowsProfileTest, TheSecondFormServesIfTheFirstIsMissing) {
    QDir().mkdir(kSecond);
    start();
    expectFolder(kSecond);
}

TEST_F(WindowsProfileTest, TheSystemsOwnFolderComesBeforeBoth) {
    QDir().mkdir(kFirst);
    ports.folders.data = path("data");
    start();
    expectFolder(path("data") + QDir::separator());
}

TEST_F(WindowsProfileTest, ThePickerStartsAtTheRootAndNamesTheFirstFormAlone) {
    QDir().mkdir(kSecond);
    startAndOpen();
    ui::click(frmSettings->cmdApplicationData);
    ASSERT_EQ(ports.dialogs.chooseFolderRequests.size(), 1u);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].folder, "C:\\") << "a root keeps its backslash";
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].title, kTitle) << "the name is not trimmed here";
    EXPECT_EQ(frmSettings->txtDefaultPath.text.get(), "C:\\");
}

TEST_F(WindowsProfileTest, ThePickerStartsAtTheProfileIfItHoldsAFile) {
    const QString profile = "C:\\documents and settings\\ann \\";
    writeTo(profile + "ntuser.dat", "");
    QDir().mkdir(kSecond);
    startAndOpen();
    ui::click(frmSettings->cmdApplicationData);
    EXPECT_EQ(frmSettings->txtDefaultPath.text.get(), profile);
    ASSERT_EQ(ports.dialogs.chooseFolderRequests.size(), 1u);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].folder, profile.chopped(1));
}

TEST_F(WindowsProfileTest, UseDefaultsTakesTheFirstFormIfItHoldsAFile) {
    QDir().mkdir(kSecond);
    startAndOpen();
    QDir().mkdir(kFirstUntrimmed);
    writeTo(kFirstUntrimmed + "tarnwell.conf", "");
    ui::click(frmSettings->cmdDefaults);
    expectFolder(kFirstUntrimmed);
    EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(), kFirstUntrimmed + "tarnwell.list");
    EXPECT_TRUE(ports.dialogs.chooseFolderRequests.empty());
}

TEST_F(WindowsProfileTest, UseDefaultsAsksTheUserIfTheFirstFormIsEmpty) {
    QDir().mkdir(kSecond);
    startAndOpen();
    QDir().mkdir(kFirstUntrimmed);
    ui::click(frmSettings->cmdDefaults);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests.size(), 1u);
}

TEST_F(WindowsProfileTest, UseDefaultsPrefersTheSystemsOwnFolder) {
    ports.folders.data = path("data");
    startAndOpen();
    ui::click(frmSettings->cmdDefaults);
    expectFolder(path("data") + QDir::separator());
    EXPECT_TRUE(ports.dialogs.chooseFolderRequests.empty());
}

TEST_F(WindowsProfileTest, UseDefaultsAsksTheUserIfOnlyTheSecondFormIsThere) {
    QDir().mkdir(kSecond);
    startAndOpen();
    ui::click(frmSettings->cmdDefaults);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests.size(), 1u);
    expectFolder(kSecond);
}

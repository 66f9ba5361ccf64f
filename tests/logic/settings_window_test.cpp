#include "support/settings_test.h"

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

struct SettingsWindowTest : SettingsTest {
    SettingsWindowTest() { start(); }
};

struct SettingsAtStart : SettingsTest {
    void startWith(const QByteArray& store) {
        writeFile("config.cfg", "[tarnwell]\r\nFont=Tahoma,8,False,False,\r\n" + store);
        start();
    }
};

} // namespace

TEST_F(SettingsWindowTest, IsLoadedAtTheStartAndNotShown) {
    EXPECT_TRUE(frmSettings.untouched().loaded());
    EXPECT_FALSE(frmSettings.untouched().shown());
}

TEST_F(SettingsWindowTest, OpensOnItsFirstPageInTheMiddleOfTheMainWindow) {
    for (const auto& show : {std::function<void()>([&] { ui::click(frmMain.cmdSettings); }),
                             std::function<void()>([&] { ui::click(frmMain.mnuSettings); })}) {
        openPage(ui::FrmSettings::kToolsTab);
        frmSettings->hide();
        show();
        EXPECT_TRUE(frmSettings->shown());
        EXPECT_EQ(frmSettings->TabStrip.caption(), "Tarnwell");
        EXPECT_TRUE(frmSettings->fmTarnwell.visible);
        EXPECT_FALSE(frmSettings->fmTools.visible);
        EXPECT_EQ(frmSettings->left, frmMain.left + frmMain.width / 2 - 5400 / 2);
        EXPECT_EQ(frmSettings->top, frmMain.top + frmMain.height / 2 - 4410 / 2);
    }
}

TEST_F(SettingsWindowTest, EachTabShowsItsPageAlone) {
    const std::vector<ui::Frame*> pages = {&frmSettings->fmTarnwell, &frmSettings->fmGUI,
                                           &frmSettings->fmTools};
    open();
    for (const std::size_t tab : {1u, 2u, 0u}) {
        ui::selectTab(frmSettings->TabStrip, static_cast<int>(tab));
        for (std::size_t i = 0; i < pages.size(); ++i)
            EXPECT_EQ(pages[i]->visible, i == tab) << tab << ' ' << i;
    }
}

TEST_F(SettingsWindowTest, AGuiSettingIsWrittenAtTheChangeAndStaysWithoutSaving) {
    openPage(ui::FrmSettings::kGuiTab);
    const std::vector<std::pair<ui::CheckBox*, QString>> boxes = {
        {&frmSettings->chkStayOnTop, "StayOnTop"},       {&frmSettings->chkClosePS2, "ClosePS2"},
        {&frmSettings->chkShutdownPS2, "TurnOffPS2"},    {&frmSettings->chkShutdownPC, "TurnOffPC"},
        {&frmSettings->chkBalloonTips, "BalloonTips"},   {&frmSettings->chkCloseStatus, "CloseStatus"},
        {&frmSettings->chkStatusServer, "StatusServer"}, {&frmSettings->chkColors, "UseColor"}};
    for (const auto& [box, key] : boxes) {
        const int before = box->value;
        EXPECT_EQ(stored(key), QString::number(before)) << key.toStdString();
        ui::click(*box);
        EXPECT_EQ(stored(key), QString::number(1 - before)) << key.toStdString();
    }
    ui::click(frmSettings->cmdExitNoSave);
    EXPECT_FALSE(frmSettings->shown());
    for (const auto& [box, key] : boxes)
        EXPECT_EQ(stored(key), QString::number(box->value)) << key.toStdString();
}

TEST_F(SettingsWindowTest, AToolSettingWaitsForSaveAndExit) {
    open();
    ui::click(frmSettings->chkEnableASPI);
    ui::click(frmSettings->cmdExitNoSave);
    EXPECT_EQ(readConf(), "");
    open();
    EXPECT_EQ(frmSettings->chkEnableASPI.value, 0) << "nothing is taken back";
    ui::click(frmSettings->cmdExit);
    EXPECT_TRUE(readConf().contains("\"enable_aspi\" = \"no\"\n"));
    EXPECT_FALSE(frmSettings->shown());
    EXPECT_TRUE(frmSettings.untouched().loaded());
}

TEST_F(SettingsWindowTest, TheCloseBoxHidesAndDoesWhatTheLastButtonSaid) {
    open();
    EXPECT_FALSE(ui::close(frmSettings.untouched()));
    EXPECT_FALSE(frmSettings->shown());
    EXPECT_EQ(readConf(), "");
    open();
    ui::click(frmSettings->cmdExit);
    open();
    ui::type(frmSettings->txtTargetkbps, "42");
    ui::close(frmSettings.untouched());
    EXPECT_TRUE(readConf().contains("\"target_kbps\" = \"42\"\n"));
}

TEST_F(SettingsWindowTest, WithoutTheToolsFileSavingClosesItAndTheNextUseLoadsItAnew) {
    open();
    ui::type(frmSettings->txtTargetkbps, "42");
    QFile::remove(conf());
    ui::click(frmSettings->cmdExit);
    EXPECT_EQ(lastMessage(),
              "Tarnwell settings will not be saved because your Application Data folder has not "
              "been properly set.");
    EXPECT_FALSE(frmSettings.untouched().loaded());
    writeConf("target_kbps = 17\n");
    store("BalloonTips", "1");
    open();
    EXPECT_TRUE(frmSettings->shown());
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "17");
    EXPECT_EQ(frmSettings->chkBalloonTips.value, 1);
    ui::close(frmSettings.untouched());
    EXPECT_EQ(readConf(), "target_kbps = 17\n") << "the new window saves nothing unless told to";
}

TEST_F(SettingsWindowTest, LoadedAnewWithoutAStoreItWritesTheDefaultsFirst) {
    open();
    QFile::remove(conf());
    ui::click(frmSettings->cmdExit);
    QFile::remove(path("config.cfg"));
    open();
    EXPECT_EQ(stored("CloseStatus"), "1");
    EXPECT_EQ(frmSettings->chkCloseStatus.value, 1);
}

TEST_F(SettingsWindowTest, ExitWritesTheToolsFileOnceMoreAfterASave) {
    open();
    ui::click(frmSettings->cmdExit);
    writeConf("from the tool\n");
    ui::click(frmMain.cmdExit);
    EXPECT_TRUE(readConf().startsWith("\"disc_database_file\""));
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(SettingsWindowTest, ExitWritesNothingWithoutASave) {
    writeConf("from the tool\n");
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(readConf(), "from the tool\n");
}

TEST_F(SettingsWindowTest, ExitEndsTheProgramEvenIfTheToolsFileHasGone) {
    open();
    ui::click(frmSettings->cmdExit);
    QDir(ports.folders.data).removeRecursively();
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(SettingsWindowTest, ShutdownAndStandbyExcludeEachOther) {
    openPage(ui::FrmSettings::kGuiTab);
    ui::click(frmSettings->chkStandby);
    EXPECT_EQ(stored("StandbyPC"), "1");
    ui::click(frmSettings->chkShutdownPC);
    EXPECT_EQ(frmSettings->chkStandby.value, 0);
    EXPECT_EQ(stored("StandbyPC"), "0");
    EXPECT_EQ(stored("TurnOffPC"), "1");
    ui::click(frmSettings->chkStandby);
    EXPECT_EQ(frmSettings->chkShutdownPC.value, 0);
    EXPECT_EQ(stored("TurnOffPC"), "0");
    EXPECT_EQ(stored("StandbyPC"), "1");
}

TEST_F(SettingsWindowTest, StayOnTopConcernsEveryWindowThatIsUp) {
    openPage(ui::FrmSettings::kGuiTab);
    frmStatus->show();
    ui::click(frmSettings->chkStayOnTop);
    EXPECT_FALSE(frmMain.topmost);
    EXPECT_FALSE(frmSettings->topmost);
    ui::click(frmSettings->chkStayOnTop);
    EXPECT_TRUE(frmMain.topmost);
    EXPECT_TRUE(frmSettings->topmost);
    EXPECT_TRUE(frmStatus->topmost);
    frmStatus->hide();
    ui::click(frmSettings->chkStayOnTop);
    EXPECT_TRUE(frmStatus->topmost) << "a hidden window is left alone";
}

TEST_F(SettingsWindowTest, AGreyedStayOnTopLeavesTheWindowsOnTop) {
    EXPECT_TRUE(frmMain.topmost);
    frmSettings->chkStayOnTop.value = 2;
    EXPECT_TRUE(frmMain.topmost);
    EXPECT_TRUE(frmSettings->topmost);
    EXPECT_EQ(stored("StayOnTop"), "2");
}

TEST_F(SettingsWindowTest, TheGameFolderIsChosenAndStoredWithASeparator) {
    openPage(ui::FrmSettings::kGuiTab);
    const QString folder = makeFolder("games");
    ui::click(frmSettings->cmdDefaultISO);
    EXPECT_EQ(stored("DefaultISO"), "") << "cancelled";
    ports.dialogs.chooseFolderAnswers.push_back(folder.chopped(1));
    ui::click(frmSettings->cmdDefaultISO);
    EXPECT_EQ(stored("DefaultISO"), folder);
    EXPECT_EQ(frmSettings->txtDefaultISO.text.get(), folder);
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].title, "Select PS2 Game ISO directory");
    EXPECT_EQ(ports.dialogs.chooseFolderRequests[0].folder, "");
}

TEST_F(SettingsWindowTest, AFolderOfImagesOutsideTheCodePageIsKnownByItsShortNameOrNotTaken) {
    openPage(ui::FrmSettings::kGuiTab);
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2");
    ports.folders.namesInCodePage = {{folder + QDir::separator(), "/1A2B~1/"}};
    ports.dialogs.chooseFolderAnswers = {folder, folder};
    ui::click(frmSettings->cmdDefaultISO);
    EXPECT_EQ(stored("DefaultISO"), "/1A2B~1/");
    EXPECT_EQ(frmSettings->txtDefaultISO.text.get(), "/1A2B~1/");
    ports.folders.namesInCodePage = {{folder + QDir::separator(), ""}};
    ui::click(frmSettings->cmdDefaultISO);
    EXPECT_TRUE(lastMessage().startsWith(folder + QDir::separator() + " cannot be used: "));
    EXPECT_EQ(stored("DefaultISO"), "/1A2B~1/");
}

TEST_F(SettingsWindowTest, ADiscDatabaseOutsideTheCodePageIsKnownByItsShortNameOrNotTaken) {
    open();
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2/");
    ports.folders.namesInCodePage = {{folder, "/1A2B~1/"}};
    ports.dialogs.openFileAnswers = {folder + "tarnwell.list", folder + "tarnwell.list"};
    ui::click(frmSettings->cmdDiskDatabase);
    EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(), "/1A2B~1/tarnwell.list");
    ports.folders.namesInCodePage = {{folder, ""}, {folder + "tarnwell.list", ""}};
    ui::click(frmSettings->cmdDiskDatabase);
    EXPECT_TRUE(lastMessage().startsWith(folder + "tarnwell.list cannot be used: "));
    EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(), "/1A2B~1/tarnwell.list");
}

TEST_F(SettingsWindowTest, OnlyTheToolsOwnDiscDatabaseIsTaken) {
    open();
    for (const char* file : {"C:\\other.list", "C:\\tarnwell.list.bak", ""}) {
        ports.dialogs.openFileAnswers.push_back(QString(file));
        ui::click(frmSettings->cmdDiskDatabase);
        EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(), "") << file;
    }
    ports.dialogs.openFileAnswers.push_back(QString("D:\\TarnWell.LIST"));
    ui::click(frmSettings->cmdDiskDatabase);
    EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(), "D:\\TarnWell.LIST");
    EXPECT_TRUE(ports.dialogs.messages.empty());
    const OpenFileRequest& request = ports.dialogs.openFileRequests.back();
    EXPECT_EQ(request.title, "Select Disk Database");
    EXPECT_EQ(request.filter, "Tarnwell Disk Database|tarnwell.list");
    EXPECT_EQ(request.folder, ports.folders.data + QDir::separator());
    EXPECT_TRUE(request.mustExist);
}

TEST_F(SettingsWindowTest, TheSoundsButtonOpensItsMenuUnderItself) {
    openPage(ui::FrmSettings::kGuiTab);
    QStringList menus;
    frmSettings->menuWanted.connect([&](ui::PopupMenu& menu, const ui::Control& control) {
        menus += menu.name + " below " + control.name;
    });
    ui::click(frmSettings->cmdSounds);
    EXPECT_EQ(menus, QStringList("mnuSounds below cmdSounds"));
}

TEST_F(SettingsWindowTest, UseDefaultsAsksFirst) {
    openPage(ui::FrmSettings::kGuiTab);
    ui::click(frmSettings->chkClosePS2);
    ports.dialogs.questionAnswer = false;
    ui::click(frmSettings->cmdDefaults);
    EXPECT_EQ(stored("ClosePS2"), "1");
    EXPECT_EQ(
        ports.dialogs.questions,
        QStringList("Are you sure you want to reset all of your settings to default for both tarnwell and "
                    "the GUI?"));
}

TEST_F(SettingsWindowTest, UseDefaultsResetsTheGuiAndWhatTheToolsFileLacks) {
    openPage(ui::FrmSettings::kGuiTab);
    ui::click(frmSettings->chkClosePS2);
    frmMain.txtIP.text = QString("10.0.0.1");
    frmSettings->chkAutoThrottle.value = 1;
    frmSettings->chkToxicOS.value = 1;
    writeConf("\"enable_aspi\" = \"yes\"\n\"target_kbps\" = \"1\"\n");
    ui::click(frmSettings->cmdDefaults);
    EXPECT_EQ(stored("ClosePS2"), "0");
    EXPECT_EQ(frmSettings->chkClosePS2.value, 0);
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    EXPECT_EQ(frmSettings->chkAutoThrottle.value, 0);
    EXPECT_EQ(frmSettings->chkEnableASPI.value, 1) << "the file says so";
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "1");
    EXPECT_EQ(frmSettings->chkToxicOS.value, 1) << "not touched";
    EXPECT_EQ(frmSettings->txtDiscDatabase.text.get(),
              ports.folders.data + QDir::separator() + "tarnwell.list");
    EXPECT_EQ(stored("ApplicationData"), ports.folders.data + QDir::separator());
}

TEST_F(SettingsWindowTest, UseDefaultsSetsEveryToolSettingThatAnEmptyFileLeavesOpen) {
    open();
    frmMain.txtIP.text = QString("10.0.0.1");
    frmSettings->chkAutoThrottle.value = 1;
    frmSettings->chkEnableASPI.value = 1;
    frmSettings->chkLimit28bit.value = 0;
    frmSettings->chkUseCompression.value = 1;
    frmSettings->txtTargetkbps.text = QString("42");
    ui::click(frmSettings->cmdDefaults);
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    EXPECT_EQ(frmSettings->chkAutoThrottle.value, 0);
    EXPECT_EQ(frmSettings->chkEnableASPI.value, 0);
    EXPECT_EQ(frmSettings->chkLimit28bit.value, 1);
    EXPECT_EQ(frmSettings->chkUseCompression.value, 0);
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "2300");
}

TEST_F(SettingsAtStart, EverySettingIsShownAndTakesEffect) {
    startWith(
        "ClosePS2=1\r\nTurnOffPC=0\r\nStandbyPC=1\r\nTurnOffPS2=1\r\nDefaultISO=/games/\r\nStayOnTop=1\r\n"
        "BalloonTips=1\r\nCloseStatus=1\r\nStatusServer=1\r\nTaskSound=a.wav\r\nTasksSound=\r\n");
    EXPECT_EQ(frmSettings->chkClosePS2.value, 1);
    EXPECT_EQ(frmSettings->chkShutdownPC.value, 0);
    EXPECT_EQ(frmSettings->chkStandby.value, 1);
    EXPECT_EQ(frmSettings->chkShutdownPS2.value, 1);
    EXPECT_EQ(frmSettings->chkBalloonTips.value, 1);
    EXPECT_EQ(frmSettings->chkCloseStatus.value, 1);
    EXPECT_EQ(frmSettings->chkStatusServer.value, 1);
    EXPECT_EQ(frmSettings->txtDefaultISO.text.get(), "/games/");
    EXPECT_EQ(frmMain.mnuTaskSound.caption.get(), "Sound when task completes: a.wav");
    EXPECT_EQ(frmMain.mnuTasksSound.caption.get(), "Sound when all tasks complete: [none selected]");
    EXPECT_TRUE(frmMain.topmost);
    EXPECT_TRUE(frmSettings->topmost);
}

TEST_F(SettingsAtStart, AnEmptyStoreMeansOff) {
    startWith("");
    EXPECT_FALSE(frmMain.topmost);
    EXPECT_EQ(frmSettings->chkCloseStatus.value, 0);
    EXPECT_EQ(stored("CloseStatus"), "") << "no default is written into an existing store";
}

TEST_F(SettingsAtStart, ANumberThatNoBoxHoldsIsLeftOut) {
    startWith("StayOnTop=7\r\nClosePS2=99999999999\r\nBalloonTips=-1\r\nTurnOffPS2=yes\r\nCloseStatus=2\r\n");
    EXPECT_FALSE(frmMain.topmost);
    EXPECT_EQ(frmSettings->chkClosePS2.value, 0);
    EXPECT_EQ(frmSettings->chkBalloonTips.value, 0);
    EXPECT_EQ(frmSettings->chkCloseStatus.value, 2);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(SettingsAtStart, AGreyedStayOnTopMovesNoWindow) {
    startWith("StayOnTop=2\r\n");
    EXPECT_FALSE(frmMain.topmost);
    EXPECT_EQ(stored("StayOnTop"), "2");
}

TEST_F(SettingsAtStart, OfTwoStoredPowerActionsTheLaterInTheLoadStays) {
    startWith("TurnOffPC=1\r\nStandbyPC=1\r\n");
    EXPECT_EQ(frmSettings->chkShutdownPC.value, 0);
    EXPECT_EQ(frmSettings->chkStandby.value, 1);
    EXPECT_EQ(stored("TurnOffPC"), "0");
}

TEST_F(SettingsAtStart, AFontThatCannotBeReadIsToldAndTheProgramStarts) {
    writeFile("config.cfg", "[tarnwell]\r\nFont=Tahoma,8\r\n");
    writeConf("target_kbps = 5\n");
    start();
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "5");
}

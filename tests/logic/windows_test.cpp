#include "support/program_test.h"

#include <QDir>

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

struct StartUp : ProgramTest {};

struct Windows : ProgramTest {
    Windows() { start(); }
    void useStatus() {
        frmStatus->picCurrent.tag = QString("50");
        frmStatus->show();
    }
};

} // namespace

TEST_F(StartUp, WritesTheDefaultsIfThereIsNoStore) {
    start();
    EXPECT_EQ(stored("Font"), "Tahoma,8,False,False,");
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
}

TEST_F(StartUp, LeavesAnExistingStoreAlone) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=0\r\n");
    start();
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    EXPECT_EQ(stored("IP"), "") << "the key stays missing until the text is changed";
    ui::type(frmMain.txtIP, "10.0.0.1");
    EXPECT_EQ(stored("IP"), "10.0.0.1");
}

TEST_F(StartUp, ShowsTheStoredAddress) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.1.2.3\r\n");
    start();
    EXPECT_EQ(frmMain.txtIP.text.get(), "10.1.2.3");
}

TEST_F(StartUp, OpensTallIfTheActivityIsToBeSeen) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=01\r\n");
    start();
    EXPECT_EQ(frmMain.height, 6365);
    EXPECT_EQ(frmMain.chkOutput.value, 1);
    EXPECT_EQ(stored("ViewOutput"), "1") << "the value is stored again, as a number";
}

TEST_F(StartUp, StandsInTheMiddleOfTheScreen) {
    start();
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmMain.height, 3740);
    EXPECT_EQ(frmMain.left, ports.windows.screen.width / 2 - frmMain.width / 2);
    EXPECT_EQ(frmMain.top, ports.windows.screen.height / 2 - frmMain.height / 2);
    EXPECT_EQ(frmMain.fmJob.left, 120);
    EXPECT_EQ(frmMain.fmJob.top, 0);
}

TEST_F(StartUp, SetsTheWidthsOfTheColumns) {
    start();
    std::vector<int> games, jobs;
    for (const ui::Column& column : frmMain.lstHD.columns.get())
        games.push_back(column.width);
    for (const ui::Column& column : frmMain.lstJob.columns.get())
        jobs.push_back(column.width);
    EXPECT_EQ(games, (std::vector{1400, 1070, 720, 540, 560}));
    EXPECT_EQ(jobs, (std::vector{1000, 1125, 1100, 1375, 1700, 1200, 900, 1000}));
}

TEST_F(StartUp, PutsTheTitleIntoTheTray) {
    start();
    EXPECT_TRUE(ports.tray.shown);
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v1.5 by mirelane");
    EXPECT_EQ(frmMain.picDiskSpace.drawing.get().text, "0%");
}

TEST_F(StartUp, WorksWhereNothingCanBeWritten) {
    // A program that cannot keep its data folder either looks for the tool's file where it was started.
    const QString before = QDir::currentPath();
    QDir::setCurrent(ports.folders.folder);
    ports.folders.folder += "/missing";
    start();
    QDir::setCurrent(before);
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    ui::type(frmMain.txtIP, "10.0.0.1");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(Windows, PagesSwitchByTheirOptions) {
    ui::click(frmMain.optBrowse);
    EXPECT_TRUE(frmMain.fmBrowse.visible);
    EXPECT_FALSE(frmMain.fmInstall.visible);
    ui::click(frmMain.optInstall);
    EXPECT_FALSE(frmMain.fmBrowse.visible);
    EXPECT_TRUE(frmMain.fmInstall.visible);
}

TEST_F(Windows, TheJobPageLeadsBackToThePageUnderIt) {
    ui::click(frmMain.optBrowse);
    ui::click(frmMain.optJobQueue);
    EXPECT_TRUE(frmMain.fmJob.visible);
    EXPECT_TRUE(frmMain.fmBrowse.visible) << "only covered";
    ui::click(frmMain.cmdControls);
    EXPECT_FALSE(frmMain.fmJob.visible);
    EXPECT_TRUE(frmMain.fmBrowse.visible);
    EXPECT_TRUE(frmMain.optBrowse.value);

    ui::click(frmMain.optInstall);
    ui::click(frmMain.optJobQueue);
    ui::click(frmMain.cmdControls);
    EXPECT_FALSE(frmMain.fmJob.visible);
    EXPECT_TRUE(frmMain.fmInstall.visible);
    EXPECT_TRUE(frmMain.optInstall.value);
}

TEST_F(Windows, TheActivityMakesTheWindowTallAndIsRemembered) {
    ui::click(frmMain.chkOutput);
    EXPECT_EQ(frmMain.height, 6365);
    EXPECT_EQ(stored("ViewOutput"), "1");
    ui::click(frmMain.chkOutput);
    EXPECT_EQ(frmMain.height, 3740);
    EXPECT_EQ(stored("ViewOutput"), "0");
}

TEST_F(Windows, TheOutputBoxShowsItsEndWithoutACaret) {
    frmMain.txtOutput.caretVisible = true;
    frmMain.txtOutput.text = QString("12345");
    EXPECT_EQ(frmMain.txtOutput.selectionStart, 5);
    EXPECT_EQ(frmMain.txtOutput.selectionLength, 5);
    EXPECT_FALSE(frmMain.txtOutput.caretVisible);
}

TEST_F(Windows, MinimizeHidesTheMainWindowAlone) {
    frmStatus->show();
    ui::click(frmMain.cmdMinimize);
    EXPECT_FALSE(frmMain.shown());
    EXPECT_TRUE(frmStatus->shown());
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
}

TEST_F(Windows, TheTrayEntryHidesBothDuringWork) {
    program.shared().blnQueueRunning = true;
    frmStatus->show();
    ui::click(frmMain.mnuMinimize);
    EXPECT_FALSE(frmMain.shown());
    EXPECT_FALSE(frmStatus->shown());
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
    ui::click(frmMain.mnuMinimize);
    EXPECT_TRUE(frmMain.shown());
    EXPECT_TRUE(frmStatus->shown());
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Minimize");
}

TEST_F(Windows, TheTrayEntryLeavesAnIdleStatusWindowAlone) {
    useStatus();
    ui::click(frmMain.mnuMinimize);
    EXPECT_TRUE(frmStatus->shown());
    EXPECT_FALSE(frmMain.shown());
}

TEST_F(Windows, ADoubleClickOnTheTrayBringsTheMainWindowBack) {
    ui::click(frmMain.cmdMinimize);
    ports.tray.doubleClicked();
    EXPECT_TRUE(frmMain.shown());
    EXPECT_FALSE(frmStatus.untouched().loaded()) << "it has shown no job";
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Minimize");
}

TEST_F(Windows, ADoubleClickOnTheTrayBringsAUsedStatusWindowBack) {
    useStatus();
    frmStatus->hide();
    ports.tray.doubleClicked();
    EXPECT_TRUE(frmStatus->shown());
    frmStatus->unload();
    ports.tray.doubleClicked();
    EXPECT_FALSE(frmStatus.untouched().shown()) << "it was closed since";
}

TEST_F(Windows, ADoubleClickOnTheTrayBringsBackWhatWasMinimised) {
    useStatus();
    program.shared().blnQueueRunning = true;
    const std::initializer_list<ui::Form*> both{&frmMain, &frmStatus.untouched()};
    for (const bool hidden : {false, true}) {
        for (ui::Form* form : both)
            form->windowState = ui::WindowState::Minimised;
        if (hidden)
            ui::click(frmMain.mnuMinimize);
        ports.tray.doubleClicked();
        for (const ui::Form* form : both) {
            EXPECT_TRUE(form->shown());
            EXPECT_EQ(form->windowState, ui::WindowState::Normal) << form->name.toStdString();
        }
    }
}

TEST_F(Windows, ADoubleClickOnTheTrayBringsBackAMinimisedStatusWindowAfterItsJobs) {
    useStatus();
    frmStatus->windowState = ui::WindowState::Minimised;
    ports.tray.doubleClicked();
    EXPECT_EQ(frmStatus->windowState, ui::WindowState::Normal);
}

TEST_F(Windows, TheSettingsComeBackIfTheyWereMinimised) {
    ui::click(frmMain.cmdSettings);
    program.shared().frmSettings->windowState = ui::WindowState::Minimised;
    ui::click(frmMain.cmdSettings);
    EXPECT_EQ(program.shared().frmSettings->windowState, ui::WindowState::Normal);
}

TEST_F(Windows, ARightClickOnTheTrayOpensItsMenuWhetherTheWindowIsUpOrNot) {
    int opened = 0;
    frmMain.mnuSystray.poppedUpAtPointer.connect([&] { ++opened; });
    ports.tray.rightClicked();
    ui::click(frmMain.cmdMinimize);
    ports.tray.rightClicked();
    EXPECT_EQ(opened, 2);
}

TEST_F(Windows, TheStatusWindowsPowerChoicesExcludeEachOther) {
    frmStatus->show();
    ui::click(frmStatus->chkShutdown);
    ui::click(frmStatus->chkStandby);
    EXPECT_EQ(frmStatus->chkShutdown.value, 0);
    EXPECT_EQ(frmStatus->chkStandby.value, 1);
    ui::click(frmStatus->chkShutdown);
    EXPECT_EQ(frmStatus->chkShutdown.value, 1);
    EXPECT_EQ(frmStatus->chkStandby.value, 0);
}

TEST_F(Windows, TheStatusWindowHidesByItsButtonAndClosesWhenIdle) {
    frmStatus->show();
    ui::click(frmStatus->cmdMinimize);
    EXPECT_FALSE(frmStatus->shown());
    EXPECT_EQ(frmStatus->windowState, ui::WindowState::Normal);
    EXPECT_TRUE(ui::close(frmStatus.untouched()));
}

TEST_F(Windows, ExitRemovesTheTrayIconAndEnds) {
    ui::click(frmMain.cmdExit);
    EXPECT_FALSE(ports.tray.shown);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(ports.launcher.children.empty());
}

TEST_F(Windows, ExitTurnsTheConsoleOffInBothPassesIfSet) {
    store("ClosePS2", "1");
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(ports.launcher.commandLines(), QStringList(2, path("tarnwell.exe") + " poweroff 192.168.0.10"));
}

TEST_F(Windows, ExitSkipsAConsoleThatDoesNotAnswerWithoutAWord) {
    store("ClosePS2", "1");
    ports.ping.reply = {.status = FakePing::kTimedOut};
    ui::click(frmMain.mnuExit);
    EXPECT_TRUE(ports.launcher.children.empty());
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(Windows, ExitLeavesTheConsoleOnInLocalMode) {
    store("ClosePS2", "1");
    answerQueryWith(kTwoDisks);
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(commands(), QStringList("query"));
}

TEST_F(Windows, TheCloseBoxGoesTheSameWayOut) {
    ui::close(frmMain);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_FALSE(ports.tray.shown);
}

TEST_F(Windows, AFaultInAHandlerIsToldAndTheProgramGoesOn) {
    frmMain.cmdAbout.Click = [] { throw std::out_of_range("row 7"); };
    ui::click(frmMain.cmdAbout);
    ASSERT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().contains("row 7"));
    ui::click(frmMain.optBrowse);
    EXPECT_TRUE(frmMain.fmBrowse.visible);
}

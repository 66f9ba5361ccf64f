#include "support/program_test.h"

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

struct Windows : ProgramTest {
    Windows() { start(); }
    void useStatus() {
        frmStatus->picCurrent.tag = QString("50");
        frmStatus->show();
    }
    /// Notes which window comes or goes, in order.
    void noteShowing() {
        for (ui::Form* form : std::initializer_list<ui::Form*>{&frmMain, &frmStatus.untouched()})
            form->visible.changed.connect(
                [this, form] { showing += form->name + (form->shown() ? " up" : " away"); });
    }
    QStringList showing;
};

struct DuringWork : Windows, testing::WithParamInterface<bool Shared::*> {
    DuringWork() {
        program.shared().*GetParam() = true;
        useStatus();
        noteShowing();
    }
};

INSTANTIATE_TEST_SUITE_P(OfAnyKind, DuringWork,
                         testing::Values(&Shared::blnQueueRunning, &Shared::blnInstallRunning));

} // namespace

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

TEST_F(Windows, AClickIntoTheOutputShowsNoCaret) {
    frmMain.txtOutput.caretVisible = true;
    ui::click(frmMain.chkOutput);
    EXPECT_TRUE(ui::click(frmMain.txtOutput));
    EXPECT_FALSE(frmMain.txtOutput.caretVisible);
}

TEST_F(Windows, MinimizeHidesTheMainWindowAlone) {
    frmStatus->show();
    ui::click(frmMain.cmdMinimize);
    EXPECT_FALSE(frmMain.shown());
    EXPECT_TRUE(frmStatus->shown());
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
}

TEST_P(DuringWork, MinimizeLeavesTheStatusWindowUp) {
    ui::click(frmMain.cmdMinimize);
    EXPECT_EQ(showing, QStringList("frmMain away"));
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
}

TEST_P(DuringWork, TheTrayEntryHidesBothAndBringsBothBackWithTheMainWindowInFront) {
    ui::click(frmMain.mnuMinimize);
    EXPECT_EQ(showing, QStringList({"frmStatus away", "frmMain away"}));
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Maximize");
    showing.clear();
    ui::click(frmMain.mnuMinimize);
    EXPECT_EQ(showing, QStringList({"frmStatus up", "frmMain up"}));
    EXPECT_EQ(frmMain.mnuMinimize.caption.get(), "Minimize");
}

TEST_F(Windows, AfterWorkTheStatusWindowComesBackInFrontOfTheMainWindow) {
    useStatus();
    frmStatus->hide();
    ui::click(frmMain.cmdMinimize);
    noteShowing();
    ui::click(frmMain.mnuMinimize);
    EXPECT_EQ(showing, QStringList({"frmMain up", "frmStatus up"}));
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

TEST_F(Windows, DuringWorkTheStatusWindowComesBackFirstAndEndsUpInFront) {
    frmStatus->load();
    ui::click(frmMain.cmdMinimize);
    program.shared().blnQueueRunning = true;
    QStringList shows;
    frmMain.visible.assigned = [&](bool) { shows += "main"; };
    frmStatus->visible.assigned = [&](bool) { shows += "status"; };
    ports.tray.doubleClicked();
    EXPECT_EQ(shows, QStringList({"status", "main", "status"}));
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

TEST_F(Windows, AFaultInAHandlerIsToldAndTheProgramGoesOn) {
    frmMain.cmdAbout.Click = [] { throw std::out_of_range("row 7"); };
    ui::click(frmMain.cmdAbout);
    ASSERT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().contains("row 7"));
    ui::click(frmMain.optBrowse);
    EXPECT_TRUE(frmMain.fmBrowse.visible);
}

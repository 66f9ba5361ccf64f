#include "services/about_window.h"
#include "support/program_test.h"
#include "ui/version.h"

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

struct About : ProgramTest {
    About() { start(); }

    ui::LoadedOnTouch<ui::FrmAbout>& frmAbout = program.shared().frmAbout;
    ui::FrmAbout& window = frmAbout.untouched();
    QString typed() const { return window.txtAbout.text; }
};

constexpr int kHalfWayMs = 1000;
const char kBeginning[] = "Thanks to everyone that contributed ideas and gave bug reports. ";

} // namespace

TEST_F(About, IsNotLoadedBeforeItIsWanted) {
    EXPECT_FALSE(window.loaded());
}

TEST_F(About, OpensBeforeAllOtherWindowsWithTheVersionOfTheProgram) {
    store("StayOnTop", "0");
    ui::click(frmMain.cmdAbout);
    EXPECT_TRUE(window.shown());
    EXPECT_TRUE(window.topmost) << "whatever the settings say of the other windows";
    EXPECT_EQ(window.Label2.caption.get(), "v" TARNWELL_VERSION);
}

TEST_F(About, ThanksTypeThemselvesLetterByLetter) {
    const qint64 opened = ports.clock.now;
    ports.pump.after(10 * 15 - 1, [&] { EXPECT_EQ(typed(), QString(kBeginning).left(10)); });
    ui::click(frmMain.cmdAbout);
    EXPECT_TRUE(typed().startsWith(kBeginning));
    EXPECT_GT(typed().size(), QString(kBeginning).size());
    EXPECT_EQ(ports.clock.now - opened, typed().size() * 15);
    EXPECT_EQ(window.txtAbout.selectionStart, typed().size());
}

TEST_F(About, WhatWaitsIsServedBeforeTheFirstLetter) {
    QString seen = "not looked";
    ports.pump.queue([&] { seen = typed(); });
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(seen, "");
}

TEST_F(About, TheTextHasTheFocusWhileItIsTyped) {
    int focused = 0;
    window.txtAbout.focusWanted.connect([&] { ++focused; });
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(focused, typed().size());
}

TEST_F(About, ASecondClickWhileItIsOpenDoesNothing) {
    QString before;
    ports.pump.after(kHalfWayMs, [&] {
        before = typed();
        ui::click(frmMain.cmdAbout);
        EXPECT_EQ(typed(), before);
    });
    ui::click(frmMain.cmdAbout);
    EXPECT_FALSE(before.isEmpty());
    const QString whole = typed();
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(typed(), whole);
}

TEST_F(About, ClosingInTheMiddleOfTheTypingIsHarmless) {
    ports.pump.after(kHalfWayMs, [&] { ui::close(window); });
    ui::click(frmMain.cmdAbout);
    EXPECT_FALSE(window.loaded()) << "not loaded again by the letters that were left";
    EXPECT_EQ(typed(), "");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(About, OpeningItAgainStartsTheTextFromEmpty) {
    ui::click(frmMain.cmdAbout);
    const QString whole = typed();
    ui::close(window);
    QString first;
    ports.pump.after(14, [&] { first = typed(); });
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(first, "T");
    EXPECT_EQ(typed(), whole);
}

TEST_F(About, ClosedAndOpenedAgainWhileItTypesItHoldsTheTextOnce) {
    ports.pump.after(kHalfWayMs, [&] {
        ui::close(window);
        ui::click(frmMain.cmdAbout);
    });
    ui::click(frmMain.cmdAbout);
    const QString text = typed();
    ui::close(window);
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(text, typed());
}

TEST_F(About, TheProgramCanEndInTheMiddleOfTheTyping) {
    ports.pump.after(kHalfWayMs, [&] { ui::click(frmMain.cmdExit); });
    ui::click(frmMain.cmdAbout);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_FALSE(window.loaded());
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(About, TheProgramsEndClosesItBeforeAllOtherWindows) {
    QStringList closed;
    window.Unload = [&](bool&) { closed += "frmAbout"; };
    program.shared().frmSettings.untouched().visible.changed.connect([&] { closed += "frmSettings"; });
    program.shared().frmSettings->show();
    closed.clear();
    frmStatus->show();
    frmStatus.untouched().visible.changed.connect([&] { closed += "frmStatus"; });
    ui::click(frmMain.cmdAbout);
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(closed, QStringList({"frmAbout", "frmSettings", "frmStatus"}));
}

TEST_F(About, ItsButtonIsOffWhileWorkRuns) {
    GuiSwitch gui(frmMain);
    gui.EnableGUI(false);
    EXPECT_FALSE(ui::click(frmMain.cmdAbout));
    EXPECT_FALSE(window.loaded());
}

TEST_F(About, EachLinkOpensItsPage) {
    ui::click(frmMain.cmdAbout);
    for (ui::Label* link : {&window.lblCommunitySite, &window.lblThread, &window.Label4, &window.Label5})
        EXPECT_TRUE(ui::click(*link)) << link->name.toStdString();
    EXPECT_EQ(ports.browser.opened, QStringList({web_pages::kCommunitySite, web_pages::kReleaseThread,
                                                 web_pages::kTool, web_pages::kTool}));
}

TEST_F(About, ALinkOpensInTheMiddleOfTheTyping) {
    ports.pump.after(kHalfWayMs, [&] { ui::click(window.lblThread); });
    ui::click(frmMain.cmdAbout);
    EXPECT_EQ(ports.browser.opened, QStringList(web_pages::kReleaseThread));
}

TEST_F(About, TheToolTipsOfTheLinksTellWhereTheyLead) {
    EXPECT_EQ(window.lblCommunitySite.toolTip.get(), web_pages::kCommunitySite);
    EXPECT_EQ(window.lblThread.toolTip.get(), web_pages::kReleaseThread);
    EXPECT_EQ(window.Label4.toolTip.get(), "Recommended version of Tarnwell to use.");
    EXPECT_EQ(window.Label5.toolTip.get(), "Recommended version of tarnd_svr.elf to use.");
}

TEST_F(About, OnlyLinksReactToAClick) {
    ui::click(frmMain.cmdAbout);
    EXPECT_FALSE(ui::click(window.Label1));
    EXPECT_FALSE(ui::click(window.Label2));
}

TEST_F(About, KeepsItsOwnLook) {
    program.shared().frmSettings->chkColors.value = 1;
    store("Forecolor", "255");
    ui::click(frmMain.cmdAbout);
    for (const ui::Control* control : window.controls())
        EXPECT_FALSE(control->foreColor.get() || control->font.get()) << control->name.toStdString();
}

TEST(VersionIn, IsTheWordThatStartsWithAV) {
    EXPECT_EQ(VersionIn(" Tarnwell GUI v1.5 by mirelane"), "v1.5");
    EXPECT_EQ(VersionIn("Very odd v v2"), "v");
    EXPECT_EQ(VersionIn("Name without one"), "Name");
}

#include "support/gtest_qt.h"
#include "ui/user_actions.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

struct UserForm : Form {
    UserForm() : Form("frmSample", {}) {}
    Button cmdSample{*this, "cmdSample"};
    Label lblSample{*this, "lblSample"};
    Label lblLink{*this, "lblLink", {.link = true}};
    CheckBox chkSample{*this, "chkSample"};
    TextBox txtSample{*this, "txtSample"};
    TextBox txtLines{*this, "txtLines", {.multiLine = true}};
    TextBox txtFixed{*this, "txtFixed", {.text = "fixed", .readOnly = true}};
    ComboBox cmbSample{*this, "cmbSample", {.items = {"a", "b"}}};
    ListView lstSample{*this, "lstSample", {.editableLabels = true}};
    TabStrip tabSample{*this, "tabSample", {.items = {"a", "b"}, .listIndex = 0}};
    Timer tmrSample{*this, "tmrSample"};
    PopupMenu mnuTop{*this, "mnuTop", "top"};
    MenuEntry mnuEntry{mnuTop, "mnuEntry", "Entry"};
    MenuEntry mnuBar{mnuTop, "mnuBar", "-"};
};

struct UserActions : testing::Test {
    UserActions() { form.show(); }
    UserForm form;
    int calls = 0;
    const std::function<void()> count = [this] { ++calls; };
};

} // namespace

TEST_F(UserActions, OfLabelsOnlyAReachableLinkTakesAClick) {
    form.lblSample.Click = count;
    form.lblLink.Click = count;
    EXPECT_FALSE(click(form.lblSample));
    EXPECT_TRUE(click(form.lblLink));
    form.hide();
    EXPECT_FALSE(click(form.lblLink));
    EXPECT_EQ(calls, 1);
}

TEST_F(UserActions, ClickReachesOnlyWhatIsEnabled) {
    form.cmdSample.Click = count;
    EXPECT_TRUE(click(form.cmdSample));
    form.cmdSample.enabled = false;
    EXPECT_FALSE(click(form.cmdSample));
    EXPECT_EQ(calls, 1);
}

TEST_F(UserActions, ClickTurnsACheckBoxOver) {
    click(form.chkSample);
    EXPECT_EQ(form.chkSample.value, 1);
    click(form.chkSample);
    EXPECT_EQ(form.chkSample.value, 0);
}

TEST_F(UserActions, TypingIntoAReadOnlyBoxDoesNothing) {
    EXPECT_TRUE(type(form.txtSample, "text"));
    EXPECT_FALSE(type(form.txtFixed, "text"));
    EXPECT_EQ(form.txtSample.text.get(), "text");
    EXPECT_EQ(form.txtFixed.text.get(), "fixed");
}

TEST_F(UserActions, LineBreaksStayOutOfABoxOfOneLine) {
    type(form.txtSample, "10.0.0.1\r\n");
    EXPECT_EQ(form.txtSample.text.get(), "10.0.0.1");
    type(form.txtSample, QString("\nCopper\r\nRun\u2028two\u2029three\u0085\v"));
    EXPECT_EQ(form.txtSample.text.get(), "Copper Run two three");
    type(form.txtSample, " Copper\tRun ");
    EXPECT_EQ(form.txtSample.text.get(), " Copper\tRun ");
}

TEST_F(UserActions, LineBreaksAreAtHomeInABoxOfSeveralLines) {
    type(form.txtLines, "one\ntwo\n");
    EXPECT_EQ(form.txtLines.text.get(), "one\ntwo\n");
}

TEST_F(UserActions, LineBreaksStayOutOfALabel) {
    form.lstSample.append({.text = "old"});
    QString asked;
    form.lstSample.AfterLabelEdit = [&](bool&, int, const QString& text) { asked = text; };
    editLabel(form.lstSample, 0, "Copper\nRun\n");
    EXPECT_EQ(asked, "Copper Run");
    EXPECT_EQ(form.lstSample.row(0).text, "Copper Run");
}

TEST_F(UserActions, AHandlerCanSwallowAKey) {
    form.txtSample.KeyPress = [](int& key) { key = key == 13 ? 0 : key; };
    EXPECT_FALSE(pressKey(form.txtSample, 13));
    EXPECT_TRUE(pressKey(form.txtSample, 'a'));
}

TEST_F(UserActions, AMenuOfAHiddenWindowStillWorks) {
    form.hide();
    form.mnuEntry.Click = count;
    EXPECT_TRUE(click(form.mnuEntry));
    EXPECT_FALSE(click(form.mnuBar));
    form.mnuEntry.enabled = false;
    EXPECT_FALSE(click(form.mnuEntry));
    EXPECT_EQ(calls, 1);
}

TEST_F(UserActions, AnIndexThatTheListLacksCannotBeChosen) {
    EXPECT_TRUE(choose(form.cmbSample, 1));
    EXPECT_FALSE(choose(form.cmbSample, 2));
    EXPECT_EQ(form.cmbSample.text(), "b");
}

TEST_F(UserActions, ARefusedLabelEditKeepsTheOldLabel) {
    form.lstSample.append({.text = "old"});
    EXPECT_TRUE(editLabel(form.lstSample, 0, "new"));
    EXPECT_EQ(form.lstSample.row(0).text, "new");
    form.lstSample.AfterLabelEdit = [](bool& cancel, int, const QString&) { cancel = true; };
    EXPECT_FALSE(editLabel(form.lstSample, 0, "newer"));
    EXPECT_EQ(form.lstSample.row(0).text, "new");
}

TEST_F(UserActions, ALabelEditWhoseHandlerEmptiesTheListIsHarmless) {
    form.lstSample.append({.text = "old"});
    form.lstSample.AfterLabelEdit = [&](bool&, int, const QString&) { form.lstSample.clear(); };
    EXPECT_TRUE(editLabel(form.lstSample, 0, "new"));
    EXPECT_EQ(form.lstSample.count(), 0);
}

TEST_F(UserActions, ATimerTicksOnlyWhenItIsOnAndHasAnInterval) {
    form.tmrSample.Tick = count;
    tick(form.tmrSample);
    form.tmrSample.interval = 10;
    tick(form.tmrSample);
    form.tmrSample.enabled = false;
    tick(form.tmrSample);
    EXPECT_EQ(calls, 1);
}

TEST_F(UserActions, HandlersRunThroughTheDispatcherOfTheWindow) {
    int dispatched = 0;
    form.dispatcher = [&](const std::function<void()>& handler) {
        ++dispatched;
        handler();
    };
    click(form.cmdSample);
    click(form.chkSample);
    choose(form.cmbSample, 0);
    type(form.txtSample, "x");
    close(form);
    EXPECT_EQ(dispatched, 5);
    EXPECT_FALSE(form.loaded());
}

TEST_F(UserActions, SelectingATabFiresClickWhenItIsAnother) {
    form.tabSample.Click = count;
    EXPECT_TRUE(selectTab(form.tabSample, 0));
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(selectTab(form.tabSample, 1));
    form.tabSample.selectedTab = 0;
    EXPECT_EQ(calls, 2);
    EXPECT_FALSE(selectTab(form.tabSample, 2));
    form.tabSample.enabled = false;
    EXPECT_FALSE(selectTab(form.tabSample, 1));
    EXPECT_EQ(form.tabSample.caption(), "a");
}

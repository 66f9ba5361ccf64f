#include "support/gtest_qt.h"
#include "ui/form.h"
#include "ui/list_view.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

struct CountingForm : Form {
    CountingForm() : Form("frmSample", {.caption = "Sample"}) {
        Load = [this] { ++loads; };
    }
    Label lblSample{*this, "lblSample", {.caption = "start", .enabled = false}};
    ComboBox cmbSample{*this, "cmbSample", {.items = {"a", "b"}, .listIndex = 1}};
    ListView lstSample{*this, "lstSample"};
    PopupMenu mnuTop{*this, "mnuTop", "top"};
    MenuEntry mnuEntry{mnuTop, "mnuEntry", "Entry", true};
    int loads = 0;
};

} // namespace

TEST(Form, LoadsOnceHoweverOftenItIsTouched) {
    LoadedOnTouch<CountingForm> form;
    EXPECT_FALSE(form.untouched().loaded());
    form->lblSample.caption = QString("touched");
    form->lblSample.caption = QString("again");
    EXPECT_TRUE(form.untouched().loaded());
    EXPECT_EQ(form.untouched().loads, 1);
    EXPECT_FALSE(form.untouched().shown());
}

TEST(Form, ShowingLoadsAndHidingKeepsItLoaded) {
    CountingForm form;
    form.show();
    EXPECT_TRUE(form.shown());
    form.hide();
    EXPECT_FALSE(form.shown());
    EXPECT_TRUE(form.loaded());
    EXPECT_EQ(form.loads, 1);
}

TEST(Form, UnloadingBringsEveryControlBackToItsStart) {
    CountingForm form;
    form.show();
    form.caption = QString("other");
    form.lblSample.caption = QString("other");
    form.lblSample.enabled = true;
    form.lblSample.tag = QString("hidden");
    form.cmbSample.clear();
    form.lstSample.append({.text = "row"});
    form.mnuEntry.checked = true;
    int clicks = 0;
    form.cmbSample.Click = [&] { ++clicks; };

    EXPECT_TRUE(form.unload());

    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(form.caption.get(), "Sample");
    EXPECT_EQ(form.lblSample.caption.get(), "start");
    EXPECT_FALSE(form.lblSample.enabled);
    EXPECT_EQ(form.lblSample.tag.get(), "");
    EXPECT_EQ(form.cmbSample.text(), "b");
    EXPECT_EQ(form.lstSample.count(), 0);
    EXPECT_FALSE(form.mnuEntry.checked);
    EXPECT_EQ(clicks, 0);
    form.load();
    EXPECT_EQ(form.loads, 2);
}

TEST(Form, UnloadingTakesAGrownListBackToWhatWasDeclared) {
    CountingForm form;
    form.load();
    form.cmbSample.addItem("c");
    form.cmbSample.listIndex = 2;
    form.unload();
    EXPECT_EQ(form.cmbSample.items(), QStringList({"a", "b"}));
    EXPECT_EQ(form.cmbSample.text(), "b");
}

TEST(Form, AHandlerCanRefuseToUnload) {
    CountingForm form;
    form.show();
    form.lblSample.caption = QString("kept");
    form.Unload = [](bool& cancel) { cancel = true; };
    EXPECT_FALSE(form.unload());
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(form.lblSample.caption.get(), "kept");
}

TEST(Form, ARefusedQueryDoesNotReachUnload) {
    CountingForm form;
    form.load();
    int unloads = 0;
    form.QueryUnload = [](bool& cancel) { cancel = true; };
    form.Unload = [&](bool&) { ++unloads; };
    EXPECT_FALSE(form.unload());
    EXPECT_EQ(unloads, 0);
}

TEST(Form, UnloadingItselfInItsUnloadHandlerDoesNothingMore) {
    CountingForm form;
    form.load();
    int unloads = 0;
    form.Unload = [&](bool&) {
        ++unloads;
        form.unload();
    };
    EXPECT_TRUE(form.unload());
    EXPECT_EQ(unloads, 1);
}

TEST(Form, UnloadingWhatIsNotLoadedRunsNothing) {
    CountingForm form;
    int unloads = 0;
    form.Unload = [&](bool&) { ++unloads; };
    EXPECT_TRUE(form.unload());
    EXPECT_EQ(unloads, 0);
}

TEST(Form, StandsInTheMiddleOfAnotherWithoutBeingLoaded) {
    CountingForm form, other;
    form.width = 200;
    form.height = 100;
    other.left = 1000;
    other.top = 500;
    other.width = 600;
    other.height = 60;
    form.centreOver(other);
    EXPECT_EQ(form.left, 1200);
    EXPECT_EQ(form.top, 480);
    EXPECT_FALSE(form.loaded());
}

#include "support/gtest_qt.h"
#include "ui/form.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

struct ControlsForm : Form {
    ControlsForm() : Form("frmSample", {.caption = "Sample"}) {}
    Frame fmLeft{*this, "fmLeft"};
    Frame fmRight{*this, "fmRight"};
    OptionButton optOne{*this, "optOne", {.in = &fmLeft, .value = 1}};
    OptionButton optTwo{*this, "optTwo", {.in = &fmLeft}};
    OptionButton optOther{*this, "optOther", {.in = &fmRight, .value = 1}};
    CheckBox chkSample{*this, "chkSample"};
    TextBox txtSample{*this, "txtSample", {.text = "old"}};
    ComboBox cmbSample{*this, "cmbSample", {.items = {"a", "b"}}};
    PictureBox picSample{*this, "picSample", {.width = 3000}};
    Line Line1{*this, "Line1"};
};

struct ControlTest : testing::Test {
    ControlsForm form;
    int clicks = 0;
    const std::function<void()> count = [this] { ++clicks; };
};

} // namespace

TEST_F(ControlTest, APropertyTellsOnlyOfDifferentValues) {
    int changes = 0;
    form.chkSample.caption.changed.connect([&] { ++changes; });
    form.chkSample.caption = QString("new");
    form.chkSample.caption = QString("new");
    EXPECT_EQ(changes, 1);
}

TEST_F(ControlTest, AListenerThatIsAddedDuringAChangeIsCalledByTheNextOne) {
    int calls = 0;
    form.fmLeft.caption.changed.connect([&] { form.fmLeft.caption.changed.connect([&] { ++calls; }); });
    form.fmLeft.caption = QString("one");
    EXPECT_EQ(calls, 0);
    form.fmLeft.caption = QString("two");
    EXPECT_EQ(calls, 1);
}

TEST_F(ControlTest, ACheckBoxClicksWheneverItsValueChanges) {
    form.chkSample.Click = count;
    form.chkSample.value = 1;
    form.chkSample.value = 1;
    form.chkSample.value = 2;
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlTest, ChoosingAnOptionClearsTheOthersOfItsFrameAlone) {
    form.optTwo.value = true;
    EXPECT_FALSE(form.optOne.value);
    EXPECT_TRUE(form.optTwo.value);
    EXPECT_TRUE(form.optOther.value);
}

TEST_F(ControlTest, AnOptionClicksOnlyWhenItWasNotSet) {
    form.optTwo.Click = count;
    form.optTwo.value = true;
    form.optTwo.value = true;
    EXPECT_EQ(clicks, 1);
    form.optOne.value = true;
    EXPECT_EQ(clicks, 1) << "being cleared is no click";
}

TEST_F(ControlTest, TheOthersAreClearedBeforeAnOptionClicks) {
    bool oneWasCleared = false;
    form.optTwo.Click = [&] { oneWasCleared = !form.optOne.value; };
    form.optTwo.value = true;
    EXPECT_TRUE(oneWasCleared);
}

TEST_F(ControlTest, AListClicksForTheSameIndexToo) {
    form.cmbSample.Click = count;
    form.cmbSample.listIndex = 1;
    form.cmbSample.listIndex = 1;
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(form.cmbSample.text(), "b");
}

TEST_F(ControlTest, ClearingAListLeavesNoChoiceAndClicksNothing) {
    form.cmbSample.listIndex = 1;
    form.cmbSample.Click = count;
    form.cmbSample.clear();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(form.cmbSample.listIndex, -1);
    EXPECT_EQ(form.cmbSample.listCount(), 0);
    EXPECT_EQ(form.cmbSample.text(), "");
}

TEST_F(ControlTest, AnIndexPastTheEndChoosesNothing) {
    form.cmbSample.listIndex = 2;
    EXPECT_EQ(form.cmbSample.listIndex, -1);
}

TEST_F(ControlTest, ATextBoxTellsOnlyOfADifferentText) {
    form.txtSample.Change = count;
    form.txtSample.text = QString("old");
    EXPECT_EQ(clicks, 0);
    form.txtSample.text = QString("new");
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlTest, APictureKeepsItsScaleBetweenDrawings) {
    EXPECT_EQ(form.picSample.scaleWidth, 3000);
    form.picSample.scaleWidth = 100;
    form.picSample.drawing = PictureBox::Drawing{"5%", 5};
    EXPECT_EQ(form.picSample.scaleWidth, 100);
}

TEST_F(ControlTest, ALineHasNothingToEnable) {
    EXPECT_FALSE(form.Line1.hasEnabled());
    EXPECT_TRUE(form.txtSample.hasEnabled());
}

TEST_F(ControlTest, TheCollectionIsInTheOrderOfDeclaration) {
    QStringList names;
    for (const Control* control : form.controls())
        names += control->name;
    EXPECT_EQ(names.join(' '),
              "fmLeft fmRight optOne optTwo optOther chkSample txtSample cmbSample picSample Line1");
}

TEST_F(ControlTest, ADisabledOrHiddenFrameKeepsTheUserFromWhatIsInIt) {
    form.show();
    EXPECT_TRUE(form.optOne.usable());
    form.fmLeft.enabled = false;
    EXPECT_FALSE(form.optOne.usable());
    form.fmLeft.enabled = true;
    form.fmLeft.visible = false;
    EXPECT_FALSE(form.optOne.usable());
    EXPECT_TRUE(form.optOther.usable());
    form.hide();
    EXPECT_FALSE(form.optOther.usable());
}

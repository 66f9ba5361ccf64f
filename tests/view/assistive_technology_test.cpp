#include "view/view_fixture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeView>

namespace tarnwell::view {

namespace {

/// What screen readers, voice control and screen keyboards do to widgets, without a key or a click.
class AssistiveTechnology : public MainWindow {
protected:
    QAccessibleInterface& interfaceOf(const ui::Control& control) {
        return *QAccessible::queryAccessibleInterface(&widget<QWidget>(control));
    }
    void act(const ui::Control& control, const QString& action) {
        interfaceOf(control).actionInterface()->doAction(action);
        QTest::qWait(200); // a press of a button is animated
    }
    static inline const QString kToggle = QAccessibleActionInterface::toggleAction();
    static inline const QString kPress = QAccessibleActionInterface::pressAction();
};

} // namespace

TEST_F(AssistiveTechnology, WhatItWritesIntoABoxIsTyped) {
    int changes = 0;
    form.txtIP.Change = [&] { ++changes; };
    interfaceOf(form.txtIP).setText(QAccessible::Value, "127.0.0.1");
    EXPECT_EQ(form.txtIP.text, "127.0.0.1");
    EXPECT_EQ(changes, 1);
    interfaceOf(form.txtIP).editableTextInterface()->replaceText(0, 3, "10");
    EXPECT_EQ(form.txtIP.text, "10.0.0.1");
    EXPECT_EQ(widget<QLineEdit>(form.txtIP).text(), "10.0.0.1");
}

TEST_F(AssistiveTechnology, ABoxThatCannotBeTypedInKeepsItsText) {
    form.txtIP.text = "10.0.0.1";
    form.txtIP.enabled = false;
    interfaceOf(form.txtIP).setText(QAccessible::Value, "127.0.0.1");
    EXPECT_EQ(form.txtIP.text, "10.0.0.1");
    EXPECT_EQ(widget<QLineEdit>(form.txtIP).text(), "10.0.0.1");
}

TEST_F(AssistiveTechnology, WhatItTicksIsTickedOnce) {
    int clicks = 0;
    form.chkOutput.Click = [&] { ++clicks; };
    act(form.chkOutput, kToggle);
    EXPECT_EQ(form.chkOutput.value, 1);
    EXPECT_TRUE(widget<QCheckBox>(form.chkOutput).isChecked());
    EXPECT_EQ(clicks, 1);
    act(form.chkOutput, kToggle);
    EXPECT_EQ(form.chkOutput.value, 0);
    EXPECT_EQ(clicks, 2);
}

TEST_F(AssistiveTechnology, WhatItChoosesOfAGroupIsChosen) {
    int clicks = 0;
    form.optBrowse.Click = [&] { ++clicks; };
    act(form.optBrowse, kToggle);
    EXPECT_TRUE(form.optBrowse.value);
    EXPECT_FALSE(form.optInstall.value);
    EXPECT_FALSE(widget<QRadioButton>(form.optInstall).isChecked());
    act(form.optBrowse, kToggle);
    EXPECT_TRUE(widget<QRadioButton>(form.optBrowse).isChecked()) << "a group has always one that is chosen";
    EXPECT_EQ(clicks, 1);
}

TEST_F(AssistiveTechnology, APressOfAButtonIsAClick) {
    int clicks = 0;
    form.cmdAbout.Click = [&] { ++clicks; };
    act(form.cmdAbout, kPress);
    EXPECT_EQ(clicks, 1);
}

TEST_F(AssistiveTechnology, AnEntryThatIsPutIntoADropDownListIsChosenOnce) {
    int clicks = 0;
    form.cmbType.Click = [&] { ++clicks; };
    widget<QComboBox>(form.cmbType).setCurrentIndex(0);
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 0);
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(&widget<QComboBox>(form.cmbType), Qt::Key_Down);
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(AssistiveTechnology, ARowThatItSelectsIsChosenAndHasTheFocus) {
    samples::games(form, 3);
    serveEvents();
    interfaceOf(form.lstHD).tableInterface()->selectRow(1);
    serveEvents();
    EXPECT_TRUE(form.lstHD.row(1).selected);
    EXPECT_EQ(form.lstHD.selectedItem, 1);
}

} // namespace tarnwell::view

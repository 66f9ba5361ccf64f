#include "view/view_fixture.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>

namespace tarnwell::view {

namespace {

QAccessibleInterface& describe(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}

QString nameOf(QAccessibleInterface& described) {
    return described.text(QAccessible::Name);
}

/// What readers are told of the main window.
class AccessibleDescription : public MainWindow {
protected:
    QAccessibleInterface& of(const ui::Control& control) { return describe(widget<QWidget>(control)); }
    QStringList labelsOf(const ui::Control& control) {
        QStringList labels;
        for (const auto& [label, relation] : of(control).relations(QAccessible::Label)) {
            if (relation == QAccessible::Label)
                labels += nameOf(*label);
        }
        return labels;
    }
    QAccessibleInterface& entries(const ui::ComboBox& list) { return *of(list).child(0); }
};

} // namespace

TEST_F(AccessibleDescription, OptionButtonsAreRadioButtons) {
    for (const ui::OptionButton* option : {&form.optLAN, &form.optLocal, &form.optInstall, &form.optBrowse,
                                           &form.optJobQueue, &form.optISO, &form.optOptical}) {
        QAccessibleInterface& described = of(*option);
        EXPECT_EQ(described.role(), QAccessible::RadioButton);
        EXPECT_EQ(nameOf(described), option->caption.get());
        EXPECT_EQ(bool(described.state().checked), bool(option->value));
        EXPECT_TRUE(described.state().checkable);
        EXPECT_EQ(labelsOf(*option), QStringList()) << "its own caption says it";
        EXPECT_TRUE(
            described.actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    }
    EXPECT_EQ(of(form.optLocal).text(QAccessible::Accelerator), "Alt+H");
    EXPECT_EQ(of(form.optISO).text(QAccessible::Description), "Install game from an ISO file.");
    form.optBrowse.enabled = false;
    EXPECT_TRUE(of(form.optBrowse).state().disabled);
    EXPECT_EQ(of(form.optBrowse).actionInterface()->actionNames(), QStringList());
}

TEST_F(AccessibleDescription, WindowsAreWindows) {
    EXPECT_EQ(describe(window).role(), QAccessible::Window);
    EXPECT_EQ(nameOf(describe(window)), form.caption.get());
    ui::FrmSettings settings;
    const SettingsWindowView settingsView(settings);
    samples::settings(settings, ui::FrmSettings::kToolsTab);
    EXPECT_EQ(describe(*settingsView.window()).role(), QAccessible::Window);
    for (QFrame* frame : settingsView.window()->findChildren<QFrame*>()) {
        if (frame->window() == settingsView.window()) {
            EXPECT_NE(describe(*frame).role(), QAccessible::Border) << "readers call that a window";
        }
    }
}

TEST_F(AccessibleDescription, AMinimisedWindowKeepsItsName) {
    window.showMinimized();
    EXPECT_EQ(nameOf(describe(window)), form.caption.get());
}

TEST_F(AccessibleDescription, AnOpenMenuIsPartOfItsWindow) {
    QAccessibleInterface& described = describe(window);
    const int others = described.childCount();
    form.mnuCompat.popUpBelow(form.cmdCompat);
    serveEvents();
    ASSERT_EQ(described.childCount(), others + 1);
    QAccessibleInterface* const menu = described.child(others);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
    EXPECT_EQ(menu->child(0)->text(QAccessible::Name), "1: Slow HDD Access");
    EXPECT_EQ(described.indexOfChild(menu), others);
    EXPECT_EQ(described.indexOfChild(described.child(0)), 0);
    EXPECT_EQ(described.indexOfChild(nullptr), -1);
    static_cast<QWidget*>(menu->object())->close();
    EXPECT_EQ(described.childCount(), others);
    EXPECT_EQ(described.child(others), nullptr);
}

TEST_F(AccessibleDescription, GroupsCarryTheirOwnNames) {
    for (const ui::Frame* frame : {&form.fmMain, &form.fmHDDSpace, &form.fmNavigation, &form.fmOutput,
                                   &form.fmInstall, &form.fmBrowse, &form.fmJob}) {
        EXPECT_EQ(of(*frame).role(), QAccessible::Grouping);
        EXPECT_EQ(nameOf(of(*frame)), frame->caption.get());
        EXPECT_EQ(labelsOf(*frame), QStringList());
    }
    EXPECT_EQ(nameOf(of(form.fmDevice)), "") << "it has none, and takes none from around it";
    EXPECT_EQ(labelsOf(form.fmDevice), QStringList());
}

TEST_F(AccessibleDescription, LinesAreSilent) {
    for (const ui::Line* line :
         {&form.Line1, &form.Line2, &form.Line3, &form.Line4, &form.Line5, &form.Line6}) {
        EXPECT_EQ(of(*line).role(), QAccessible::Separator);
        EXPECT_EQ(nameOf(of(*line)), "");
        EXPECT_EQ(labelsOf(*line), QStringList());
    }
}

TEST_F(AccessibleDescription, DropDownListsAreNamedByTheirLabelAndValuedByTheirChoice) {
    samples::localDisk(form);
    EXPECT_EQ(of(form.cmbHD).role(), QAccessible::ComboBox);
    EXPECT_EQ(nameOf(of(form.cmbHD)), "Local PS2 disk");
    EXPECT_EQ(of(form.cmbHD).text(QAccessible::Value), "hdd1:  [465.8 GB]");
    EXPECT_EQ(nameOf(of(form.cmbType)), "Type of the disc");
    EXPECT_EQ(labelsOf(form.cmbType), QStringList("Type:")) << "and not by the group around it";
    EXPECT_EQ(of(form.cmbType).text(QAccessible::Value), "DVD-ROM");
    form.cmbType.listIndex = 0;
    EXPECT_EQ(of(form.cmbType).text(QAccessible::Value), "CD-ROM");
    for (QLabel* label : window.findChildren<QLabel*>())
        EXPECT_NE(label->text(), "Local PS2 disk") << "no text of its own";
}

/// Where values are numbers, the choice is read as a text, and spoken when it changes, being selected.
TEST_F(AccessibleDescription, TheChoiceOfADropDownListIsASelectedText) {
    QAccessibleTextInterface& text = *of(form.cmbType).textInterface();
    EXPECT_EQ(text.text(0, -1), "DVD-ROM");
    EXPECT_EQ(text.text(0, 3), "DVD");
    EXPECT_EQ(text.characterCount(), 7);
    ASSERT_EQ(text.selectionCount(), 1);
    int start = -1, end = -1;
    text.selection(0, &start, &end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 7);
}

TEST_F(AccessibleDescription, TheChosenEntryIsTheSelectedOneOfTheList) {
    EXPECT_TRUE(entries(form.cmbType).child(1)->state().selected);
    form.cmbType.listIndex = 0;
    EXPECT_TRUE(entries(form.cmbType).child(0)->state().selected);
    EXPECT_FALSE(entries(form.cmbType).child(1)->state().selected);
}

TEST_F(AccessibleDescription, WhatIsSelectedInTheClosedListIsChosen) {
    int clicks = 0;
    form.cmbType.Click = [&] { ++clicks; };
    entries(form.cmbType).child(0)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 0);
    EXPECT_EQ(clicks, 1);
    entries(form.cmbType).tableInterface()->selectRow(1);
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(AccessibleDescription, WhatIsSelectedInTheOpenListIsChosenAndTheListCloses) {
    QAccessibleActionInterface& actions = *of(form.cmbType).actionInterface();
    actions.doAction(QAccessibleActionInterface::showMenuAction());
    serveEvents();
    EXPECT_TRUE(of(form.cmbType).state().expanded);
    QTest::keyClick(widget<QComboBox>(form.cmbType).view(), Qt::Key_Up);
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 1) << "keys look around first";
    entries(form.cmbType).tableInterface()->selectRow(1);
    serveEvents();
    EXPECT_FALSE(of(form.cmbType).state().expanded);
    EXPECT_EQ(form.cmbType.listIndex, 1);
}

TEST_F(AccessibleDescription, NothingIsChosenInADropDownListThatIsOff) {
    form.cmbType.enabled = false;
    entries(form.cmbType).tableInterface()->selectRow(0);
    serveEvents();
    EXPECT_EQ(form.cmbType.listIndex, 1);
    EXPECT_TRUE(entries(form.cmbType).child(1)->state().selected);
    EXPECT_EQ(of(form.cmbType).actionInterface()->actionNames(), QStringList());
}

TEST_F(AccessibleDescription, BarsAreProgressBarsWithAValue) {
    form.picDiskSpace.drawing = ui::PictureBox::Drawing{"40%", 40};
    QAccessibleInterface& bar = of(form.picDiskSpace);
    EXPECT_EQ(bar.role(), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(bar), "Used disk space");
    EXPECT_EQ(bar.valueInterface()->minimumValue(), 0);
    EXPECT_EQ(bar.valueInterface()->maximumValue(), 100);
    EXPECT_EQ(bar.valueInterface()->currentValue(), 40);
}

} // namespace tarnwell::view

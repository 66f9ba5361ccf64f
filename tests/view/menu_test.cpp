#include "view/view_fixture.h"

#include <QMenu>
#include <QPushButton>

namespace tarnwell::view {

class FlagsMenu : public MainWindow {
protected:
    FlagsMenu() {
        for (ui::MenuEntry& flag : form.mnuFlags)
            flag.Click = [&flag] { flag.checked = !flag.checked; };
        form.mnuDone.Click = [this] { ++done; };
    }

    QMenu& open() {
        form.mnuCompat.popUpBelow(form.cmdCompat);
        serveEvents();
        return *window.findChild<QMenu*>("mnuCompat");
    }

    static QAction& entry(QMenu& menu, const ui::MenuEntry& model) {
        return *menu.findChild<QAction*>(model.name);
    }

    void clickEntry(QMenu& menu, const ui::MenuEntry& model) {
        const QPoint place = menu.actionGeometry(&entry(menu, model)).center();
        QTest::mouseMove(&menu, place);
        QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
    }

    int done = 0;
};

TEST_F(FlagsMenu, TakesSeveralFlagsInOneVisit) {
    QMenu& menu = open();
    clickEntry(menu, form.mnuFlags[0]);
    clickEntry(menu, form.mnuFlags[2]);
    clickEntry(menu, form.mnuFlags[5]);
    clickEntry(menu, form.mnuFlags[2]);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_TRUE(form.mnuFlags[0].checked);
    EXPECT_FALSE(form.mnuFlags[2].checked);
    EXPECT_TRUE(form.mnuFlags[5].checked);
    EXPECT_TRUE(entry(menu, form.mnuFlags[5]).isChecked());
}

TEST_F(FlagsMenu, KeysTickFlagsToo) {
    QMenu& menu = open();
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Space);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_TRUE(form.mnuFlags[0].checked);
    EXPECT_TRUE(form.mnuFlags[1].checked);
}

TEST_F(FlagsMenu, DoneClosesIt) {
    QMenu& menu = open();
    clickEntry(menu, form.mnuDone);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(done, 1);
}

TEST_F(FlagsMenu, EscapeClosesIt) {
    QMenu& menu = open();
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(done, 0);
}

TEST_F(FlagsMenu, ProgramCanCloseIt) {
    QMenu& menu = open();
    form.mnuCompat.close();
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(FlagsMenu, OpensBelowItsButton) {
    // The button has to stand where the screen leaves room for the menu.
    window.move(-400, 0);
    serveEvents();
    const auto& button = widget<QPushButton>(form.cmdCompat);
    const QRect place(button.mapToGlobal(QPoint()), button.size());
    const QMenu& menu = open();
    EXPECT_EQ(menu.pos(), place.bottomLeft() + QPoint(0, 1));
}

TEST_F(FlagsMenu, EveryMenuOfAButtonOpensBelowItWhereverTheWindowWasDragged) {
    samples::games(form, 3);
    for (const QPoint& place : {QPoint(-400, 0), QPoint(-300, 20)}) {
        window.move(place);
        serveEvents();
        for (const auto& [model, button] :
             {std::pair(&form.mnuDelete, &form.cmdDelete), std::pair(&form.mnuBackup, &form.cmdBackupHDD)}) {
            model->popUpBelow(*button);
            auto& menu = *window.findChild<QMenu*>(model->name);
            const auto& face = widget<QPushButton>(*button);
            EXPECT_EQ(menu.pos(), face.mapToGlobal(face.rect().bottomLeft() + QPoint(0, 1)))
                << model->name.toStdString();
            menu.hide();
        }
    }
}

TEST_F(FlagsMenu, WhereWritingRunsFromRightToLeftItsRightEdgeIsThatOfTheButton) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto& button = widget<QPushButton>(form.cmdCompat);
    window.move(200, 0);
    serveEvents();
    const QMenu& menu = open();
    EXPECT_EQ(menu.geometry().right(), button.mapToGlobal(button.rect().bottomRight()).x());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(FlagsMenu, OpeningItAgainLeavesItWhereItIs) {
    QMenu& menu = open();
    const QPoint place = menu.pos();
    form.mnuCompat.popUpBelow(form.cmdAttach);
    EXPECT_EQ(menu.pos(), place);
}

TEST_F(FlagsMenu, EntriesFollowTheModel) {
    form.mnuHDD[0].caption = "hdd1: Paper & Co";
    form.mnuHDD[1].visible = false;
    form.mnuBackup.popUpAtPointer();
    QMenu& menu = *window.findChild<QMenu*>("mnuBackup");
    EXPECT_EQ(entry(menu, form.mnuHDD[0]).text(), "hdd1: Paper && Co");
    EXPECT_FALSE(entry(menu, form.mnuHDD[1]).isVisible());
    form.mnuHDD[0].enabled = false;
    EXPECT_FALSE(entry(menu, form.mnuHDD[0]).isEnabled());
    menu.hide();
}

TEST_F(FlagsMenu, TrayMenuOpensOverAHiddenWindow) {
    int clicks = 0;
    form.mnuMinimize.Click = [&] { ++clicks; };
    form.hide();
    form.mnuSystray.popUpAtPointer();
    QMenu& menu = *window.findChild<QMenu*>("mnuSystray");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_TRUE(entry(menu, form.mnuBar7).isSeparator());
    entry(menu, form.mnuMinimize).trigger();
    EXPECT_EQ(clicks, 1);
    menu.hide();
}

} // namespace tarnwell::view

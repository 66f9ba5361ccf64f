#include "view/view_fixture.h"

#include <QAccessible>
#include <QLabel>
#include <QPlainTextEdit>

namespace tarnwell::view {

namespace {

class AboutWindow : public testing::Test {
protected:
    AboutWindow() {
        form.lblThread.Click = [this] { ++opened; };
        samples::thanks(form);
        QApplication::processEvents();
    }

    QLabel& label(const ui::Label& model) { return *view.window()->findChild<QLabel*>(model.name); }

    ui::FrmAbout form;
    AboutWindowView view{form};
    int opened = 0;
};

} // namespace

TEST_F(AboutWindow, EveryControlHasOneWidgetOfItsName) {
    for (const ui::Control* control : form.controls())
        EXPECT_EQ(view.window()->findChildren<QWidget*>(control->name).size(), 1)
            << control->name.toStdString();
}

TEST_F(AboutWindow, ItsFrameClosesIt) {
    view.window()->close();
    EXPECT_FALSE(form.loaded());
    EXPECT_FALSE(view.window()->isVisible());
}

TEST_F(AboutWindow, LinksShowTheHandAndOtherLabelsDoNot) {
    for (const ui::Label* link : {&form.lblCommunitySite, &form.lblThread, &form.Label4, &form.Label5})
        EXPECT_EQ(label(*link).cursor().shape(), Qt::PointingHandCursor) << link->name.toStdString();
    EXPECT_EQ(label(form.Label1).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(AboutWindow, AClickOnALinkOpensIt) {
    QTest::mouseClick(&label(form.lblThread), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
    QTest::mouseClick(&label(form.lblThread), Qt::RightButton);
    EXPECT_EQ(opened, 1);
}

TEST_F(AboutWindow, LinksAreLinksToScreenReadersThatCanBePressed) {
    QAccessibleInterface& link = *QAccessible::queryAccessibleInterface(&label(form.lblThread));
    EXPECT_EQ(link.role(), QAccessible::Link);
    EXPECT_EQ(link.text(QAccessible::Name), form.lblThread.caption.get());
    ASSERT_EQ(link.actionInterface()->actionNames().value(0), QAccessibleActionInterface::pressAction());
    link.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened, 1);
    link.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(label(form.lblThread).hasFocus());
    EXPECT_EQ(opened, 1);
}

TEST_F(AboutWindow, AButtonLetGoBesideTheLinkOpensNothing) {
    QTest::mousePress(&label(form.lblThread), Qt::LeftButton);
    QTest::mouseRelease(&label(form.lblThread), Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(opened, 0);
}

TEST_F(AboutWindow, LinksAreReachedAndOpenedByKeys) {
    QStringList visited;
    form.txtAbout.setFocus();
    for (int step = 0; step < 5; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited += QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited, QStringList({"lblCommunitySite", "lblThread", "Label4", "Label5", "txtAbout"}));
    label(form.lblThread).setFocus();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&label(form.lblThread), key);
    EXPECT_EQ(opened, 3);
}

TEST_F(AboutWindow, AReachedLinkIsMarked) {
    label(form.lblThread).setFocus();
    const QImage before = label(form.Label4).grab().toImage();
    QTest::keyClick(&label(form.lblThread), Qt::Key_Tab);
    EXPECT_TRUE(label(form.Label4).grab().toImage() != before);
}

TEST_F(AboutWindow, TheTextIsToBeReadOnly) {
    auto& thanks = *view.window()->findChild<QPlainTextEdit*>("txtAbout");
    EXPECT_EQ(thanks.toPlainText(), form.txtAbout.text.get());
    QTest::keyClicks(&thanks, "x");
    EXPECT_EQ(thanks.toPlainText(), form.txtAbout.text.get());
}

TEST_F(AboutWindow, TheTextGetsTheFocusWhenTheProgramSaysSo) {
    label(form.Label4).setFocus();
    form.txtAbout.setFocus();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtAbout");
}

TEST_F(AboutWindow, StaysBeforeOtherWindows) {
    form.topmost = true;
    EXPECT_TRUE(view.window()->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(view.window()->isVisible());
}

} // namespace tarnwell::view

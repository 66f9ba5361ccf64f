#include "ui/qt/colors.h"
#include "view/view_fixture.h"

#include <QWindow>

namespace tarnwell::view {

TEST(StatusWindow, IsMadeWhenItFirstOpens) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    form.load();
    EXPECT_FALSE(view.window());
    form.show();
    ASSERT_TRUE(view.window());
    EXPECT_TRUE(view.window()->isVisible());
    EXPECT_EQ(view.window()->windowTitle(), " Status");
}

TEST(StatusWindow, ABlankThatWasMeantForAnotherWindowTicksNothing) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    form.cmdMinimize.Click = [&form] { form.hide(); };
    for (int opening = 0; opening < 3; ++opening) {
        form.show();
        QApplication::processEvents();
        ASSERT_EQ(view.window()->focusWidget(), view.window()->findChild<QWidget*>("cmdMinimize"));
        QTest::keyClick(view.window()->focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(form.shown());
        form.show();
        view.window()->findChild<QWidget*>("chkShutdown")->setFocus();
        form.hide();
    }
    EXPECT_EQ(form.chkShutdown.value, 0);
}

TEST(StatusWindow, ThatOpensLateHasTheColoursThatWereChosenBefore) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    form.load();
    samples::ownLook(form);
    form.show();
    QApplication::processEvents();
    const QImage picture = view.window()->grab().toImage();
    const QColor chosen = toColor(*form.backColor.get());
    for (const QPoint& corner : {QPoint(1, 1), QPoint(picture.width() - 2, picture.height() - 2)})
        EXPECT_EQ(picture.pixelColor(corner), chosen);
}

TEST(StatusWindow, RefusedCloseMinimisesIt) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    samples::jobRunning(form);
    form.Unload = [&](bool& cancel) {
        cancel = true;
        form.windowState = ui::WindowState::Minimised;
    };
    view.window()->close();
    EXPECT_TRUE(view.window()->isMinimized());
}

/// Counts how often a window is taken from the screen.
class HideCounter : public QObject {
public:
    explicit HideCounter(QWidget& window) { window.installEventFilter(this); }
    int hides = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        hides += event->type() == QEvent::Hide ? 1 : 0;
        return false;
    }
};

TEST(StatusWindow, ComesOnTopWithoutFlicker) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    form.show();
    HideCounter counter(*view.window());
    const QWindow* const window = view.window()->windowHandle();
    for (const bool topmost : {true, false}) {
        form.topmost = topmost;
        EXPECT_EQ(window->flags().testFlag(Qt::WindowStaysOnTopHint), topmost);
        EXPECT_EQ(view.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint), topmost);
    }
    EXPECT_EQ(counter.hides, 0);
    EXPECT_EQ(view.window()->windowHandle(), window);
}

TEST(StatusWindow, MayBeOnTopFromItsFirstMoment) {
    ui::FrmStatus form;
    form.topmost = true;
    const StatusWindowView view(form);
    form.show();
    EXPECT_TRUE(view.window()->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace tarnwell::view

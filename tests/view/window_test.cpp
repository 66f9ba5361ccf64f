#include "ui/qt/colors.h"
#include "ui/version.h"
#include "view/view_fixture.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <set>

namespace tarnwell::view {

class Window : public MainWindow {};

TEST_F(Window, TakesCaptionAndVisibilityFromTheForm) {
    EXPECT_EQ(window.windowTitle(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
    EXPECT_TRUE(window.isVisible());
    form.hide();
    EXPECT_FALSE(window.isVisible());
    form.show();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Window, ClosingAsksTheForm) {
    bool refuse = true;
    form.Unload = [&](bool& cancel) { cancel = refuse; };
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(form.loaded());
    refuse = false;
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(form.loaded());
}

TEST_F(Window, OwnColoursLeaveNoPatchesInAFrame) {
    QApplication::setStyle("Fusion");
    samples::ownLook(form);
    serveEvents();
    const QColor chosen = toColor(*form.backColor.get());
    const QImage picture = window.grab().toImage();
    const QWidget& frame = widget<QGroupBox>(form.fmInstall);
    const auto colorAt = [&](const QWidget& face, const QPoint& place) {
        return picture.pixelColor(face.mapTo(&window, place));
    };
    constexpr int kInside = 4;
    EXPECT_EQ(colorAt(frame, {kInside, frame.height() - kInside}), chosen);
    EXPECT_EQ(colorAt(frame, {kInside, 1}), chosen) << "beside the title";
    const QWidget& label = widget<QWidget>(form.lblGameName);
    EXPECT_EQ(colorAt(label, {label.width() - 1, 0}), chosen);
}

TEST_F(Window, TallHeightUncoversTheActivity) {
    const int shortHeight = window.height();
    const auto& activity = widget<QGroupBox>(form.fmOutput);
    EXPECT_FALSE(activity.isVisible());
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_TRUE(activity.isVisible());
    const int taller = window.currentScale().pixels(ui::FrmMain::kTallHeight - ui::FrmMain::kShortHeight);
    EXPECT_NEAR(window.height(), shortHeight + taller, 1);
    form.height = ui::FrmMain::kShortHeight;
    EXPECT_EQ(window.height(), shortHeight);
    EXPECT_FALSE(activity.isVisible());
}

TEST_F(Window, FramesStandInTheirProportions) {
    const TwipScale& scale = window.currentScale();
    const auto& left = widget<QGroupBox>(form.fmMain);
    const auto& right = widget<QGroupBox>(form.fmInstall);
    EXPECT_NEAR(left.x(), 0, 1);
    EXPECT_EQ(left.width(), scale.pixels(form.fmMain.width));
    EXPECT_NEAR(right.width(), scale.pixels(form.fmInstall.width), 2);
    EXPECT_NEAR(right.mapTo(&window, QPoint()).x(), scale.pixels(form.fmInstall.left), 2);
    EXPECT_NEAR(right.height(), scale.pixels(form.fmInstall.height), 2);
}

TEST_F(Window, ResizingByTheUserIsReportedAndGrowsTheLists) {
    const int before = widget<QGroupBox>(form.fmInstall).width();
    const int height = form.height;
    window.resize(window.width() + 150, window.height());
    serveEvents();
    EXPECT_EQ(form.width, window.currentScale().twips(window.width()) + 90);
    EXPECT_EQ(form.height, height);
    EXPECT_EQ(widget<QGroupBox>(form.fmInstall).width(), before + 150);
}

/// A window on the screen of a small laptop.
class SmallScreen : public MainWindow {
protected:
    SmallScreen() {
        const auto screens = QGuiApplication::screens();
        if (screens.size() < 2)
            return;
        small_ =
            *std::ranges::min_element(screens, {}, [](const QScreen* each) { return each->size().height(); });
        window.move(room().topLeft() + QPoint(40, 300));
        serveEvents();
    }

    QRect room() const { return small_->availableGeometry(); }
    QScrollArea& face() { return *window.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly); }

    const QScreen* small_ = nullptr;
};

TEST_F(SmallScreen, TheWindowMovesUpWhenTheActivityWouldReachBelowTheScreen) {
    if (!small_)
        GTEST_SKIP() << "no second screen";
    window.move(room().left() + 40, room().bottom() - window.height() - 10);
    serveEvents();
    const int left = window.x();
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_TRUE(room().contains(window.frameGeometry()));
    EXPECT_EQ(window.x(), left);
    EXPECT_EQ(window.currentScale().pixels(form.top), window.y()) << "the program knows of it";
    EXPECT_FALSE(face().verticalScrollBar()->isVisible());
    EXPECT_EQ(form.height, ui::FrmMain::kTallHeight);
}

TEST_F(SmallScreen, WhatAFontThatTheUserChoosesPushesOffTheScreenIsScrolledTo) {
    if (!small_)
        GTEST_SKIP() << "no second screen";
    samples::localDisk(form);
    samples::games(form, 12);
    samples::activity(form);
    serveEvents();
    for (ui::Control* control : form.controls()) {
        if (control->hasFont())
            control->font = ui::Font{"DejaVu Sans", 24};
    }
    serveEvents();
    EXPECT_TRUE(room().contains(window.frameGeometry()));
    EXPECT_TRUE(face().verticalScrollBar()->isVisible());

    window.activateWindow();
    widget<QWidget>(form.optLocal).setFocus();
    std::set<const QWidget*> reached;
    while (reached.insert(window.focusWidget()).second) {
        const QWidget& at = *window.focusWidget();
        EXPECT_GE(at.visibleRegion().boundingRect().height(), at.fontMetrics().height())
            << at.objectName().toStdString();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(reached.contains(&widget<QWidget>(form.cmdExit)));
    EXPECT_TRUE(reached.contains(&widget<QWidget>(form.txtOutput)));
}

TEST_F(Window, TheUsersHeightHasNoEndAndTheListTakesIt) {
    samples::games(form, 12);
    serveEvents();
    const int listBefore = widget<QWidget>(form.lstHD).height();
    window.resize(window.width(), window.height() + 700);
    serveEvents();
    EXPECT_EQ(widget<QWidget>(form.lstHD).height(), listBefore + 700);
    EXPECT_FALSE(widget<QGroupBox>(form.fmOutput).isVisible()) << "the program has not asked for it";
}

TEST_F(Window, WithTheActivityShownListAndActivityShareTheRoom) {
    samples::games(form, 12);
    samples::activity(form);
    serveEvents();
    const int list = widget<QWidget>(form.lstHD).height(), output = widget<QWidget>(form.txtOutput).height();
    window.resize(window.width(), window.height() + 300);
    serveEvents();
    const int listGains = widget<QWidget>(form.lstHD).height() - list;
    const int outputGains = widget<QWidget>(form.txtOutput).height() - output;
    EXPECT_GT(listGains, 50);
    EXPECT_GT(outputGains, 50);
    EXPECT_EQ(listGains + outputGains, 300);
}

TEST_F(Window, WhatTheUserGaveStaysWhenTheActivityComesAndGoes) {
    const QSize usual = window.size();
    const QSize large = usual + QSize(120, 200);
    window.resize(large);
    serveEvents();
    const int taller = window.currentScale().pixels(ui::FrmMain::kTallHeight - ui::FrmMain::kShortHeight);
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_EQ(window.width(), large.width());
    EXPECT_NEAR(window.height(), large.height() + taller, 1);
    form.height = ui::FrmMain::kShortHeight;
    serveEvents();
    EXPECT_EQ(window.size(), large);
    samples::jobs(form);
    form.fmJob.visible = false;
    serveEvents();
    EXPECT_EQ(window.size(), large);
}

TEST_F(Window, HasNoLimitThatWouldKeepWindowsFromOfferingToMaximiseIt) {
    const QSize none(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    EXPECT_EQ(window.maximumSize(), none);
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_EQ(window.maximumSize(), none);
}

TEST_F(Window, MaximisedItStaysSoAndItsPartsTakeTheRoom) {
    samples::games(form, 12);
    const QSize usual = window.size();
    window.showMaximized();
    serveEvents();
    ASSERT_TRUE(window.isMaximized());
    const QSize maximised = window.size();
    EXPECT_GT(widget<QWidget>(form.lstHD).height(), usual.height());
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_TRUE(window.isMaximized());
    EXPECT_EQ(window.size(), maximised);
    EXPECT_TRUE(widget<QGroupBox>(form.fmOutput).isVisible());
    window.showNormal();
    serveEvents();
    const int taller = window.currentScale().pixels(ui::FrmMain::kTallHeight - ui::FrmMain::kShortHeight);
    EXPECT_EQ(window.width(), usual.width());
    EXPECT_NEAR(window.height(), usual.height() + taller, 1);
}

TEST_F(Window, MovingGoesBothWays) {
    form.left = 3000;
    form.top = 1500;
    serveEvents();
    EXPECT_EQ(window.pos(), QPoint(window.currentScale().pixels(3000), window.currentScale().pixels(1500)));
    EXPECT_EQ(form.left, 3000) << "rounding to pixels must not come back";
    window.move(50, 60);
    serveEvents();
    EXPECT_EQ(form.left, window.currentScale().twips(50));
    EXPECT_EQ(form.top, window.currentScale().twips(60));
}

TEST_F(Window, MinimisingGoesBothWays) {
    form.windowState = ui::WindowState::Minimised;
    EXPECT_TRUE(window.isMinimized());
    window.showNormal();
    serveEvents();
    EXPECT_EQ(form.windowState, ui::WindowState::Normal);
    window.showMinimized();
    serveEvents();
    EXPECT_EQ(form.windowState, ui::WindowState::Minimised);
}

TEST_F(Window, ComesBackFromItsTitleBarsMinimising) {
    window.showMinimized();
    serveEvents();
    form.showRestored();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
    form.windowState = ui::WindowState::Minimised;
    form.hide();
    form.showRestored();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(Window, WithoutATrayHidingMinimises) {
    int restored = 0;
    window.hideMinimises = [] { return true; };
    window.restored = [&] {
        ++restored;
        form.show();
    };
    form.hide();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isMinimized());
    window.showNormal();
    serveEvents();
    EXPECT_EQ(restored, 1);
    EXPECT_TRUE(form.visible);
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(Window, WithoutATrayShowingBringsItBack) {
    int restored = 0;
    window.hideMinimises = [] { return true; };
    window.restored = [&] { ++restored; };
    form.hide();
    form.show();
    serveEvents();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(restored, 0);
}

TEST_F(Window, WithoutATrayTheEndStillHides) {
    window.hideMinimises = [] { return true; };
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Window, ShowsTheHourglass) {
    form.mousePointer = ui::MousePointer::Hourglass;
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    form.mousePointer = ui::MousePointer::Default;
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Window, AttachButtonHasTheWidthThatTheProgramGives) {
    samples::localDisk(form);
    serveEvents();
    EXPECT_EQ(window.findChild<QWidget*>("cmdAttach")->width(), window.currentScale().pixels(2175));
}

TEST_F(MainWindow, ActivityIsWrittenInLettersOfOneWidthThatScale) {
    samples::activity(form);
    serveEvents();
    const QFont& font = widget<QWidget>(form.txtOutput).font();
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    EXPECT_TRUE(QFontDatabase::isSmoothlyScalable(font.family()) || font.family() == fixed.family())
        << font.family().toStdString();
}

} // namespace tarnwell::view

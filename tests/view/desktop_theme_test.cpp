#include "ui/qt/desktop_theme.h"
#include "view/view_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabBar>
#include <QTreeView>

namespace tarnwell::view {

namespace {

/// A style that goes by the name of Windows' own.
class ThemedStyle final : public QProxyStyle {
public:
    ThemedStyle() : QProxyStyle("Fusion") { setObjectName("windowsvista"); }
};

void useWhiteOnBlack(ui::Form& form) {
    constexpr std::int32_t kWhite = 0xFFFFFF, kBlack = 0;
    form.backColor = kBlack;
    for (ui::Control* control : form.controls()) {
        if (control->hasColors()) {
            control->foreColor = kWhite;
            control->backColor = kBlack;
        }
    }
}

void expectDesktopInk(const QWidget& widget) {
    const QPalette &shown = widget.palette(), desktop = QApplication::palette();
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::Base})
        EXPECT_EQ(shown.color(QPalette::Active, role), desktop.color(QPalette::Active, role))
            << widget.objectName().toStdString();
    EXPECT_FALSE(widget.autoFillBackground()) << widget.objectName().toStdString();
}

} // namespace

class ThemedDesktop : public testing::Test {
protected:
    ThemedDesktop() { QApplication::setStyle(new ThemedStyle); }
    ~ThemedDesktop() override { QApplication::setStyle("Fusion"); }
};

TEST_F(ThemedDesktop, WritesInItsOwnInkOnWhatItDrawsItself) {
    ui::FrmMain form;
    const MainWindowView window(form);
    samples::start(form);
    const auto* list = window.findChild<QTreeView*>("lstHD");
    const auto look = [&] {
        for (const QPushButton* button : window.findChildren<QPushButton*>())
            expectDesktopInk(*button);
        for (const QComboBox* combo : window.findChildren<QComboBox*>())
            expectDesktopInk(*combo);
        expectDesktopInk(*list->header());
    };
    useWhiteOnBlack(form);
    look();
    QApplication::setPalette(samples::darkPalette());
    QApplication::processEvents();
    look();
    QApplication::setPalette(QPalette());
}

TEST(DrawnByTheme, TellsTheStylesOfThisSystemApart) {
    QPushButton button;
    const QLabel label;
    for (const QString& name : QStyleFactory::keys()) {
        const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
        button.setStyle(style.get());
        EXPECT_EQ(drawnByTheme(button), name.startsWith("windows", Qt::CaseInsensitive))
            << name.toStdString();
        button.setStyle(nullptr);
    }
    EXPECT_FALSE(drawnByTheme(label));
}

TEST_F(ThemedDesktop, WritesInItsOwnInkOnTabs) {
    ui::FrmSettings form;
    const SettingsWindowView view(form);
    samples::settings(form, ui::FrmSettings::kGuiTab);
    useWhiteOnBlack(form);
    expectDesktopInk(*view.window()->findChild<QTabBar*>("TabStrip"));
}

TEST_F(ThemedDesktop, LeavesTheRestToTheUsersColours) {
    ui::FrmMain form;
    const MainWindowView window(form);
    samples::start(form);
    useWhiteOnBlack(form);
    const auto* list = window.findChild<QTreeView*>("lstHD");
    EXPECT_EQ(list->palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(list->palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(window.findChild<QLabel*>("lblIP")->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(window.findChild<QCheckBox*>("chkOutput")->palette().color(QPalette::WindowText),
              QColor(Qt::white));
}

/// Neither a menu that was open before nor a box that is up may keep the colours of the theme before.
TEST_F(MainWindow, FollowsAChangeOfThemeWithHeadingsMenusAndBoxes) {
    samples::localDisk(form);
    samples::games(form, 5);
    QMessageBox box(QMessageBox::Warning, "Tarnwell GUI", "No room", QMessageBox::Ok, &window);
    box.show();
    QMenu& menu = window.menu(form.mnuSystray);
    menu.popup({});
    menu.hide();
    QWidget* const shown[] = {&window, widget<QTreeView>(form.lstHD).header(), &menu, &box};
    const auto ground = [](QWidget& drawn) {
        return qGray(drawn.grab().toImage().scaled(1, 1, {}, Qt::SmoothTransformation).pixel(0, 0));
    };
    constexpr int kMiddleGray = 128;
    for (QWidget* const drawn : shown)
        EXPECT_GT(ground(*drawn), kMiddleGray) << drawn->metaObject()->className();
    QApplication::setPalette(samples::darkPalette());
    serveEvents();
    for (QWidget* const drawn : shown)
        EXPECT_LT(ground(*drawn), kMiddleGray) << drawn->metaObject()->className();
    QApplication::setPalette(QPalette());
    serveEvents();
    for (QWidget* const drawn : shown)
        EXPECT_GT(ground(*drawn), kMiddleGray) << drawn->metaObject()->className();
    QApplication::setStyle("Fusion");
}

} // namespace tarnwell::view

#include "ui/qt/captions.h"
#include "view/view_fixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QTabBar>

namespace tarnwell::view {

namespace {

class SettingsWindow : public testing::Test {
protected:
    SettingsWindow() {
        samples::settings(form, ui::FrmSettings::kTarnwellTab);
        form.TabStrip.Click = [this] { samples::settings(form, tab()); };
        serveEvents();
    }

    static void serveEvents() {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    ui::FrmSettings::Tab tab() const { return ui::FrmSettings::Tab(form.TabStrip.selectedTab.get()); }
    template <class Widget = QWidget>
    Widget& widget(const ui::Control& control) {
        auto* found = view.window()->findChild<Widget*>(control.name);
        if (!found)
            throw std::runtime_error("no widget for " + control.name.toStdString());
        return *found;
    }
    void clickTab(int index) {
        auto& bar = widget<QTabBar>(form.TabStrip);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(index).center());
        serveEvents();
    }
    void expectOneSize(std::initializer_list<const ui::Button*> buttons) {
        const QSize size = widget(**buttons.begin()).size();
        for (const ui::Button* button : buttons) {
            // A pixel may be left over when the room is shared out.
            EXPECT_NEAR(widget(*button).width(), size.width(), 1) << button->name.toStdString();
            EXPECT_EQ(widget(*button).height(), size.height()) << button->name.toStdString();
        }
    }

    ui::FrmSettings form;
    SettingsWindowView view{form};
};

} // namespace

TEST_F(SettingsWindow, EveryControlHasOneWidgetOfItsName) {
    for (const ui::Control* control : form.controls())
        EXPECT_EQ(view.window()->findChildren<QWidget*>(control->name).size(), 1)
            << control->name.toStdString();
}

TEST_F(SettingsWindow, IsMadeWhenItFirstOpens) {
    ui::FrmSettings unopened;
    const SettingsWindowView late(unopened);
    unopened.load();
    unopened.chkLimit28bit.value = 0;
    EXPECT_EQ(late.window(), nullptr);
    unopened.show();
    ASSERT_NE(late.window(), nullptr);
    EXPECT_FALSE(late.window()->findChild<QAbstractButton*>("chkLimit28bit")->isChecked());
}

TEST_F(SettingsWindow, HasItsNameAndSize) {
    EXPECT_EQ(view.window()->windowTitle(), " Settings & Tools");
    EXPECT_EQ(form.width, 5400);
    EXPECT_EQ(view.window()->minimumHeight(), view.window()->maximumHeight());
}

TEST_F(SettingsWindow, AClickOnATabShowsItsPageAlone) {
    for (const int index : {1, 2, 0}) {
        clickTab(index);
        EXPECT_EQ(form.TabStrip.selectedTab, index);
        EXPECT_EQ(widget(form.fmTarnwell).isVisible(), index == ui::FrmSettings::kTarnwellTab);
        EXPECT_EQ(widget(form.fmGUI).isVisible(), index == ui::FrmSettings::kGuiTab);
        EXPECT_EQ(widget(form.fmTools).isVisible(), index == ui::FrmSettings::kToolsTab);
    }
}

TEST_F(SettingsWindow, ATabChosenByTheProgramIsShown) {
    form.TabStrip.selectedTab = ui::FrmSettings::kToolsTab;
    EXPECT_EQ(widget<QTabBar>(form.TabStrip).currentIndex(), 2);
    EXPECT_EQ(readCaption(widget<QTabBar>(form.TabStrip).tabText(1)), "GUI");
}

TEST_F(SettingsWindow, ATabThatIsOffStaysWhereItIs) {
    form.TabStrip.enabled = false;
    widget<QTabBar>(form.TabStrip).setCurrentIndex(2);
    EXPECT_EQ(form.TabStrip.selectedTab, 0);
    EXPECT_EQ(widget<QTabBar>(form.TabStrip).currentIndex(), 0);
}

TEST_F(SettingsWindow, TheKeyboardReachesTheOtherPages) {
    auto& bar = widget<QTabBar>(form.TabStrip);
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(form.TabStrip.selectedTab, 1);
}

TEST_F(SettingsWindow, ButtonsOfAKindHaveOneSize) {
    expectOneSize({&form.cmdExit, &form.cmdExitNoSave, &form.cmdDefaults});
    clickTab(ui::FrmSettings::kGuiTab);
    expectOneSize({&form.cmdForecolor, &form.cmdBackcolor, &form.cmdFont, &form.cmdSounds, &form.cmdTest});
    clickTab(ui::FrmSettings::kToolsTab);
    expectOneSize({&form.cmdRefresh, &form.cmdFormat, &form.cmdBackupTOC, &form.cmdRestoreTOC});
}

TEST_F(SettingsWindow, TextsAndTheirFieldsStandInColumns) {
    EXPECT_EQ(widget(form.txtApplicationData).x(), widget(form.txtDiscDatabase).x());
    EXPECT_EQ(widget(form.txtApplicationData).width(), widget(form.txtDiscDatabase).width());
    EXPECT_EQ(widget(form.txtApplicationData).x(), widget(form.txtTargetkbps).x());
    clickTab(ui::FrmSettings::kGuiTab);
    EXPECT_EQ(widget(form.txtDefaultISO).x(), widget(form.chkColors).x());
}

TEST_F(SettingsWindow, SwitchingPagesKeepsTheSizeOfTheWindow) {
    const QSize size = view.window()->size();
    clickTab(1);
    EXPECT_EQ(view.window()->size(), size);
    clickTab(2);
    EXPECT_EQ(view.window()->size(), size);
}

TEST_F(SettingsWindow, LongTextsFromDataDoNotWidenIt) {
    const QSize size = view.window()->size();
    form.txtApplicationData.text = QString(500, 'W');
    form.cmbHD.addItem(QString(500, 'W'));
    serveEvents();
    EXPECT_EQ(view.window()->size(), size);
}

TEST_F(SettingsWindow, EveryFieldAndButtonIsNamedForScreenReaders) {
    const auto labelOf = [&](const QWidget& face) -> QString {
        for (const QLabel* label : view.window()->findChildren<QLabel*>()) {
            if (label->buddy() == &face)
                return readCaption(label->text());
        }
        return {};
    };
    for (const ui::Control* control : form.controls()) {
        const QWidget& face = widget(*control);
        if (control->kind == ui::Kind::ComboBox) {
            EXPECT_EQ(labelOf(face), "Select a Device");
        } else if (control->kind == ui::Kind::TextBox || control->kind == ui::Kind::TabStrip) {
            EXPECT_FALSE(face.accessibleName().isEmpty()) << control->name.toStdString();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&face);
                   button && button->text() == "...") {
            EXPECT_FALSE(face.accessibleName().isEmpty()) << control->name.toStdString();
        }
    }
}

TEST_F(SettingsWindow, TabsStayReadableOnAnyBackground) {
    constexpr std::int32_t kBlack = 0, kWhite = 0xFFFFFF;
    for (const std::int32_t back : {kBlack, kWhite}) {
        form.backColor = back;
        const QPalette& colors = widget(form.TabStrip).palette();
        EXPECT_GT(std::abs(qGray(colors.windowText().color().rgb()) - qGray(colors.window().color().rgb())),
                  128);
    }
}

TEST_F(SettingsWindow, TheSoundsMenuOfTheMainWindowOpensBelowItsButtonHere) {
    ui::FrmMain frmMain;
    const MainWindowView mainWindow(frmMain);
    frmMain.show();
    clickTab(ui::FrmSettings::kGuiTab);
    const auto& button = widget(form.cmdSounds);
    for (const QPoint& place : {QPoint(30, 10), QPoint(90, 40)}) {
        view.window()->move(place);
        serveEvents();
        frmMain.mnuSounds.popUpBelow(form.cmdSounds);
        auto* menu = view.window()->findChild<QMenu*>("mnuSounds");
        ASSERT_TRUE(menu);
        EXPECT_TRUE(menu->isVisible());
        EXPECT_EQ(menu->pos(), button.mapToGlobal(button.rect().bottomLeft() + QPoint(0, 1)));
        frmMain.mnuSounds.close();
        EXPECT_FALSE(menu->isVisible());
    }
}

TEST_F(SettingsWindow, ClosingItAsksTheModel) {
    form.Unload = [this](bool& cancel) {
        cancel = true;
        form.hide();
    };
    view.window()->close();
    EXPECT_FALSE(view.window()->isVisible());
    EXPECT_TRUE(form.loaded());
}

TEST_F(SettingsWindow, AGiganticFontDoesNotMakeAWindowThatNoScreenCanHold) {
    constexpr int kWidestPixels = 4000;
    for (ui::Control* control : form.controls()) {
        if (control->hasFont())
            control->font = ui::Font{"DejaVu Sans", 2000};
    }
    serveEvents();
    EXPECT_LT(view.window()->width(), kWidestPixels);
}

TEST_F(SettingsWindow, AFontThatIsNotThereOrHasNoSizeIsReplaced) {
    form.cmdFont.font = ui::Font{"No Such Font At All", 0};
    EXPECT_GT(widget(form.cmdFont).font().pointSizeF(), 0);
    EXPECT_FALSE(QFontInfo(widget(form.cmdFont).font()).family().isEmpty());
}

} // namespace tarnwell::view

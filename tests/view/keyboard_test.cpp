#include "view/view_fixture.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTreeView>

#include <set>

namespace tarnwell::view {

namespace {

/// The captions that can be seen and have a letter of the alphabet in them, as the widgets hold them.
QStringList captionsIn(const QWidget& window) {
    QStringList captions;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisibleTo(&window) && !qobject_cast<QTabBar*>(button->parentWidget()) &&
            button->text() != "...")
            captions += button->text();
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&window) && label->buddy())
            captions += label->text();
    }
    for (const auto* bar : window.findChildren<QTabBar*>()) {
        for (int i = 0; i < bar->count(); ++i)
            captions += bar->tabText(i);
    }
    return captions;
}

/// Every caption has an access key, and no two have the same.
void expectAccessKeys(const QWidget& window, qsizetype least) {
    const QStringList captions = captionsIn(window);
    EXPECT_GE(captions.size(), least);
    std::set<QString> keys;
    for (const QString& caption : captions) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        EXPECT_FALSE(key.isEmpty()) << caption.toStdString();
        EXPECT_TRUE(keys.insert(key).second) << caption.toStdString() << " shares " << key.toStdString();
    }
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget, key, modifiers);
    QApplication::processEvents();
}

class MainKeyboard : public MainWindow {
protected:
    MainKeyboard() {
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void turnTo(const ui::Frame* page) {
        form.fmInstall.visible = page == &form.fmInstall;
        form.fmBrowse.visible = page == &form.fmBrowse;
        form.fmJob.visible = page == &form.fmJob;
        serveEvents();
    }
    void pressAlt(const ui::Control& control) {
        const QString keys = QKeySequence::mnemonic(widget<QAbstractButton>(control).text()).toString();
        ASSERT_TRUE(keys.startsWith("Alt+"));
        press(window, static_cast<Qt::Key>(keys.back().unicode()), Qt::AltModifier);
    }
    void focusList(const ui::ListView& list) {
        widget<QTreeView>(list).setFocus(Qt::TabFocusReason);
        serveEvents();
    }
    /// Counts clicks on a button from here on.
    std::shared_ptr<int> clicksOn(ui::Button& button) {
        auto clicks = std::make_shared<int>(0);
        button.enabled = true;
        button.Click = [clicks] { ++*clicks; };
        return clicks;
    }
};

class OtherKeyboard : public testing::Test {
protected:
    template <class View>
    QWidget& opened(View& view) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.window()));
        return *view.window();
    }
};

} // namespace

TEST_F(MainKeyboard, EveryCaptionThatCanBeSeenHasALetterOfItsOwn) {
    samples::activity(form);
    for (const ui::Frame* page : {&form.fmInstall, &form.fmBrowse, &form.fmJob}) {
        turnTo(page);
        SCOPED_TRACE(page->name.toStdString());
        expectAccessKeys(window, page == &form.fmJob ? 5 : 18);
    }
    form.lblIP.visible = false;
    form.cmdAttach.caption = "Refresh HDD";
    turnTo(&form.fmInstall);
    expectAccessKeys(window, 23);
}

TEST_F(MainKeyboard, TheLetterWithAltIsAClick) {
    const auto clicks = clicksOn(form.cmdAbout);
    pressAlt(form.cmdAbout);
    EXPECT_TRUE(QTest::qWaitFor([&] { return *clicks == 1; }));
    pressAlt(form.optBrowse);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.optBrowse.value.get(); }));
    EXPECT_TRUE(widget<QWidget>(form.optBrowse).hasFocus());
}

TEST_F(MainKeyboard, TheLetterOfALabelLeadsToItsBox) {
    auto& box = widget<QLineEdit>(form.txtGameName);
    const auto labels = window.findChildren<QLabel*>();
    const auto label =
        std::find_if(labels.begin(), labels.end(), [&](const QLabel* each) { return each->buddy() == &box; });
    ASSERT_NE(label, labels.end());
    const QString keys = QKeySequence::mnemonic((*label)->text()).toString();
    press(window, static_cast<Qt::Key>(keys.back().unicode()), Qt::AltModifier);
    EXPECT_TRUE(box.hasFocus());
}

TEST_F(MainKeyboard, ACaptionThatChangesKeepsItsLetter) {
    form.cmdAttach.caption = "Refresh HDD";
    EXPECT_EQ(widget<QAbstractButton>(form.cmdAttach).text().remove('&'), "Refresh HDD");
    const auto clicks = clicksOn(form.cmdAttach);
    pressAlt(form.cmdAttach);
    EXPECT_TRUE(QTest::qWaitFor([&] { return *clicks == 1; }));
}

TEST_F(MainKeyboard, F5ReadsTheDeviceAnew) {
    const auto clicks = clicksOn(form.cmdAttach);
    press(window, Qt::Key_F5);
    EXPECT_EQ(*clicks, 1);
    form.fmMain.enabled = false;
    press(window, Qt::Key_F5);
    EXPECT_EQ(*clicks, 1) << "the button cannot be reached";
}

TEST_F(MainKeyboard, DeleteInTheGameListIsTheButtonOfThatName) {
    samples::games(form, 3);
    const auto clicks = clicksOn(form.cmdDelete);
    focusList(form.lstHD);
    press(widget<QTreeView>(form.lstHD), Qt::Key_Delete);
    EXPECT_EQ(*clicks, 1);
    widget<QTreeView>(form.lstHD).setCurrentIndex(widget<QTreeView>(form.lstHD).model()->index(0, 0));
    press(widget<QTreeView>(form.lstHD), Qt::Key_F2);
    auto* editor = widget<QTreeView>(form.lstHD).viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    press(*editor, Qt::Key_Delete);
    EXPECT_EQ(*clicks, 1) << "a letter of the name was meant";
    EXPECT_EQ(editor->text(), "");
}

TEST_F(MainKeyboard, TheFirstArrowChoosesTheRowThatHasTheFocusAndTheNextMovesOn) {
    samples::jobs(form);
    for (int row = 0; row < form.lstJob.count(); ++row)
        form.lstJob.setSelected(row, false);
    serveEvents();
    focusList(form.lstJob);
    auto& view = widget<QTreeView>(form.lstJob);
    view.selectionModel()->setCurrentIndex(view.model()->index(0, 0), QItemSelectionModel::Clear);
    ASSERT_EQ(form.lstJob.selectedItem, 0);
    press(view, Qt::Key_Down);
    EXPECT_TRUE(form.lstJob.row(0).selected);
    press(view, Qt::Key_Down);
    EXPECT_TRUE(form.lstJob.row(1).selected);
    EXPECT_FALSE(form.lstJob.row(0).selected);
}

TEST_F(MainKeyboard, CtrlAChoosesAllGames) {
    samples::games(form, 5);
    focusList(form.lstHD);
    press(widget<QTreeView>(form.lstHD), Qt::Key_A, Qt::ControlModifier);
    for (int row = 0; row < form.lstHD.count(); ++row)
        EXPECT_TRUE(form.lstHD.row(row).selected) << row;
}

TEST_F(MainKeyboard, LettersFindAGame) {
    samples::games(form, 5);
    const QString name = form.lstHD.row(3).text;
    focusList(form.lstHD);
    for (const QChar letter : name.left(4))
        QTest::keyClick(&widget<QTreeView>(form.lstHD), letter.toLatin1());
    EXPECT_EQ(form.lstHD.selectedItem, 3);
}

TEST_F(MainKeyboard, DeleteInTheJobListRemovesTheJob) {
    samples::jobs(form);
    const auto clicks = clicksOn(form.cmdRemove);
    focusList(form.lstJob);
    press(widget<QTreeView>(form.lstJob), Qt::Key_Delete);
    EXPECT_EQ(*clicks, 1);
}

TEST_F(MainKeyboard, EnterAndTheMenuKeyEditAJobAsTheRightMouseButtonDoes) {
    samples::jobs(form);
    std::vector<int> buttons;
    form.lstJob.MouseDown = [&](int button) { buttons.push_back(button); };
    focusList(form.lstJob);
    QWidget& view = widget<QTreeView>(form.lstJob);
    press(view, Qt::Key_Return);
    press(view, Qt::Key_Enter);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&view, &menuKey);
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(&view, &mouse);
    EXPECT_EQ(buttons, std::vector<int>({2, 2, 2}));
}

TEST_F(MainKeyboard, TheFocusComesBackAfterThePauseThatItsButtonBegan) {
    auto& button = widget<QAbstractButton>(form.cmdAttach);
    button.setFocus(Qt::TabFocusReason);
    form.fmMain.enabled = false;
    serveEvents();
    EXPECT_FALSE(button.hasFocus());
    form.fmMain.enabled = true;
    serveEvents();
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(MainKeyboard, TheFocusStaysWhereTheUserHasTakenItMeanwhile) {
    widget<QAbstractButton>(form.cmdAttach).setFocus(Qt::TabFocusReason);
    form.cmdAttach.enabled = false;
    serveEvents();
    QWidget& other = widget<QAbstractButton>(form.cmdAbout);
    other.setFocus(Qt::MouseFocusReason);
    form.cmdAttach.enabled = true;
    serveEvents();
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(MainKeyboard, TheFocusIsNeverOnSomethingHidden) {
    widget<QAbstractButton>(form.cmdInstall).setEnabled(true);
    widget<QAbstractButton>(form.cmdInstall).setFocus(Qt::TabFocusReason);
    turnTo(&form.fmJob);
    for (int i = 0; i < 12; ++i) {
        const QWidget* const focused = QApplication::focusWidget();
        EXPECT_TRUE(!focused || focused->isVisible()) << focused->objectName().toStdString();
        press(window, Qt::Key_Tab);
    }
}

TEST_F(OtherKeyboard, TheSettingsHaveALetterForEveryCaptionOnEveryPage) {
    ui::FrmSettings form;
    SettingsWindowView view{form};
    for (const auto tab :
         {ui::FrmSettings::kTarnwellTab, ui::FrmSettings::kGuiTab, ui::FrmSettings::kToolsTab}) {
        samples::settings(form, tab);
        opened(view);
        SCOPED_TRACE(tab);
        expectAccessKeys(*view.window(), 10);
    }
}

TEST_F(OtherKeyboard, EscLeavesTheSettingsWithoutSaving) {
    ui::FrmSettings form;
    SettingsWindowView view{form};
    samples::settings(form, ui::FrmSettings::kToolsTab);
    int left = 0, refreshed = 0;
    form.cmdExitNoSave.Click = [&] { ++left; };
    form.cmdRefresh.Click = [&] { ++refreshed; };
    press(opened(view), Qt::Key_Escape);
    EXPECT_EQ(left, 1);
    press(opened(view), Qt::Key_F5);
    EXPECT_EQ(refreshed, 1);
    samples::settings(form, ui::FrmSettings::kGuiTab);
    press(opened(view), Qt::Key_F5);
    EXPECT_EQ(refreshed, 1) << "that page has nothing to read anew";
}

TEST_F(OtherKeyboard, EscDuringWorkCancelsNothing) {
    ui::FrmStatus form;
    StatusWindowView view{form};
    samples::jobRunning(form);
    int presses = 0;
    form.cmdStop.Click = [&] { ++presses; };
    form.cmdMinimize.Click = [&] { ++presses; };
    QWidget& window = opened(view);
    press(window, Qt::Key_Escape);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(form.visible);
    expectAccessKeys(window, 5);
}

TEST_F(OtherKeyboard, EachWorkFindsTheFocusWhereAStrayBlankDoesNoHarm) {
    ui::FrmStatus form;
    StatusWindowView view{form};
    samples::jobRunning(form);
    opened(view).findChild<QWidget*>(form.chkShutdown.name)->setFocus(Qt::TabFocusReason);
    form.hide();
    form.chkShutdown.enabled = false;
    form.chkShutdown.enabled = true;
    form.show();
    QWidget& window = opened(view);
    QApplication::processEvents();
    EXPECT_EQ(window.focusWidget()->objectName(), form.cmdMinimize.name);
}

TEST_F(OtherKeyboard, EscClosesTheAboutWindow) {
    ui::FrmAbout form;
    AboutWindowView view{form};
    samples::thanks(form);
    press(opened(view), Qt::Key_Escape);
    EXPECT_FALSE(form.shown());
}

} // namespace tarnwell::view

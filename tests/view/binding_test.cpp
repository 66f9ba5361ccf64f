#include "ui/qt/captions.h"
#include "view/view_fixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

namespace tarnwell::view {

class BoundControls : public MainWindow {};

TEST_F(BoundControls, ButtonClicksReachTheProgramOnce) {
    int clicks = 0;
    form.cmdAbout.Click = [&] { ++clicks; };
    QTest::mouseClick(&widget<QPushButton>(form.cmdAbout), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BoundControls, ADoubleClickOnAButtonCountsOnce) {
    int clicks = 0;
    form.cmdAbout.Click = [&] { ++clicks; };
    auto& button = widget<QPushButton>(form.cmdAbout);
    // What a widget gets of a double click: a click, a second press, the news that it is a double one, a
    // release.
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseDClick(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 2) << "the next click is one";
}

TEST_F(BoundControls, EnterPressesTheFocusedButton) {
    int clicks = 0;
    form.cmdAbout.Click = [&] { ++clicks; };
    auto& button = widget<QPushButton>(form.cmdAbout);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(button.isDefault());
}

TEST_F(BoundControls, SwitchedOffButtonIgnoresClicks) {
    int clicks = 0;
    form.cmdAbout.Click = [&] { ++clicks; };
    form.cmdAbout.enabled = false;
    QTest::mouseClick(&widget<QPushButton>(form.cmdAbout), Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    EXPECT_FALSE(widget<QPushButton>(form.cmdAbout).isEnabled());
}

TEST_F(BoundControls, FaultInAHandlerStaysInTheDispatcher) {
    bool caught = false;
    form.dispatcher = [&](const std::function<void()>& handler) {
        try {
            handler();
        } catch (const std::runtime_error&) {
            caught = true;
        }
    };
    form.cmdAbout.Click = [] { throw std::runtime_error("no size"); };
    QTest::mouseClick(&widget<QPushButton>(form.cmdAbout), Qt::LeftButton);
    EXPECT_TRUE(caught);
}

TEST_F(BoundControls, OfADoubledAmpersandCaptionsShowOne) {
    EXPECT_EQ(readCaption(widget<QPushButton>(form.cmdSettings).text()), "Settings & Tools");
    form.lblDVD9.caption = "Dragons & Keys <b>";
    EXPECT_EQ(widget<QLabel>(form.lblDVD9).text(), "Dragons & Keys <b>");
    EXPECT_EQ(widget<QLabel>(form.lblDVD9).textFormat(), Qt::PlainText);
    form.fmBrowse.caption = "A & B";
    EXPECT_EQ(widget<QGroupBox>(form.fmBrowse).title(), "A && B");
}

TEST_F(BoundControls, ToolTipsAreNeverRichText) {
    EXPECT_EQ(widget<QPushButton>(form.cmdAttach).toolTip(), "Refresh the selected device.");
    form.cmdAttach.toolTip = "<b>bold</b>";
    EXPECT_FALSE(widget<QPushButton>(form.cmdAttach).toolTip().contains("<b>"));
}

TEST_F(BoundControls, OptionFollowsTheModelWithoutAnEcho) {
    int clicks = 0;
    form.optBrowse.Click = [&] { ++clicks; };
    form.optBrowse.value = true;
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(widget<QRadioButton>(form.optBrowse).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.optInstall).isChecked());
}

TEST_F(BoundControls, ClickOnAnOptionChoosesIt) {
    int clicks = 0;
    form.optBrowse.Click = [&] { ++clicks; };
    QTest::mouseClick(&widget<QRadioButton>(form.optBrowse), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.optBrowse.value);
    EXPECT_FALSE(form.optInstall.value);
}

TEST_F(BoundControls, ClickOnTheChosenOptionLeavesItChosen) {
    QTest::mouseClick(&widget<QRadioButton>(form.optInstall), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(form.optInstall.value);
    EXPECT_TRUE(widget<QRadioButton>(form.optInstall).isChecked());
}

TEST_F(BoundControls, ArrowKeysChooseWithinTheGroup) {
    QTest::keyClick(&widget<QRadioButton>(form.optInstall), Qt::Key_Down);
    EXPECT_TRUE(form.optBrowse.value);
    QTest::keyClick(&widget<QRadioButton>(form.optInstall), Qt::Key_Up);
    EXPECT_TRUE(form.optJobQueue.value);
    EXPECT_TRUE(form.optLAN.value) << "another group must not notice";
}

TEST_F(BoundControls, CheckBoxGoesBothWays) {
    auto& box = widget<QCheckBox>(form.chkOutput);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(form.chkOutput.value, 1);
    form.chkOutput.value = 2;
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(form.chkOutput.value, 0);
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
}

TEST_F(BoundControls, TypingReachesTheProgramAndKeepsTheCaret) {
    int changes = 0;
    form.txtGameName.text = "Dragons";
    form.txtGameName.Change = [&] { ++changes; };
    auto& edit = widget<QLineEdit>(form.txtGameName);
    edit.setCursorPosition(3);
    QTest::keyClick(&edit, 'x');
    EXPECT_EQ(form.txtGameName.text, "Draxgons");
    EXPECT_EQ(edit.cursorPosition(), 4);
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundControls, PastedLineBreaksBecomeBlanksAndTheCaretStaysBehindWhatWasPasted) {
    form.txtGameName.text = "Dragons";
    auto& edit = widget<QLineEdit>(form.txtGameName);
    edit.setCursorPosition(3);
    QApplication::clipboard()->setText("Copper\r\nRun\n");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.txtGameName.text, "DraCopper Run gons");
    EXPECT_EQ(edit.text(), "DraCopper Run gons");
    EXPECT_EQ(edit.cursorPosition(), 14);
    edit.selectAll();
    QApplication::clipboard()->setText("10.0.0.1\n");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.txtGameName.text, "10.0.0.1");
    EXPECT_EQ(edit.text(), "10.0.0.1");
}

TEST_F(BoundControls, DroppedLineBreaksStayOutToo) {
    auto& edit = widget<QLineEdit>(form.txtGameName);
    QMimeData data;
    data.setText("Copper\nRun\n");
    QDragEnterEvent enter(edit.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&edit, &enter);
    QDropEvent drop(edit.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&edit, &drop);
    EXPECT_EQ(form.txtGameName.text, "Copper Run");
    EXPECT_EQ(edit.text(), "Copper Run");
}

TEST_F(BoundControls, TextFromTheProgramIsNoTyping) {
    int changes = 0;
    form.txtGameName.Change = [&] { ++changes; };
    form.txtGameName.text = "Dragons";
    EXPECT_EQ(widget<QLineEdit>(form.txtGameName).text(), "Dragons");
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundControls, HandlerCanSwallowAKey) {
    form.txtGameName.KeyPress = [](int& key) {
        if (key == 'x')
            key = 0;
    };
    QTest::keyClicks(&widget<QLineEdit>(form.txtGameName), "axb");
    EXPECT_EQ(form.txtGameName.text, "ab");
}

TEST_F(BoundControls, EnterIsAKeyLikeAnyOther) {
    int code = 0;
    form.txtGameName.KeyPress = [&](int& key) { code = key; };
    QTest::keyClick(&widget<QLineEdit>(form.txtGameName), Qt::Key_Return);
    EXPECT_EQ(code, 13);
}

TEST_F(BoundControls, ReadOnlyBoxTakesNoTyping) {
    QTest::keyClicks(&widget<QLineEdit>(form.txtISO), "abc");
    EXPECT_EQ(form.txtISO.text, "");
    EXPECT_TRUE(widget<QPlainTextEdit>(form.txtOutput).isReadOnly());
}

TEST_F(BoundControls, ClickInTheOutputIsTold) {
    int clicks = 0;
    form.chkOutput.value = 1;
    form.height = ui::FrmMain::kTallHeight;
    form.txtOutput.Click = [&] { ++clicks; };
    QTest::mouseClick(widget<QPlainTextEdit>(form.txtOutput).viewport(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BoundControls, OutputThatCameWhileItWasHiddenIsThereWhenItShows) {
    ASSERT_FALSE(widget<QPlainTextEdit>(form.txtOutput).isVisible());
    form.txtOutput.text = "first line\nlast line";
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    EXPECT_EQ(widget<QPlainTextEdit>(form.txtOutput).toPlainText(), "first line\nlast line");
}

TEST_F(BoundControls, SelectionBehindTheEndBringsTheEndIntoView) {
    samples::activity(form);
    serveEvents();
    QString text;
    for (int line = 0; line < 200; ++line)
        text += "A line of the tool\r\n";
    form.txtOutput.Change = [&] {
        form.txtOutput.selectionStart = static_cast<int>(form.txtOutput.text.get().size());
        form.txtOutput.selectionLength = static_cast<int>(form.txtOutput.text.get().size());
    };
    form.txtOutput.text = text;
    serveEvents();
    const auto& box = widget<QPlainTextEdit>(form.txtOutput);
    const auto endInView = [&box] {
        QTextCursor end(box.document());
        end.movePosition(QTextCursor::End);
        return box.viewport()->rect().contains(box.cursorRect(end).center());
    };
    EXPECT_GT(box.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(endInView());
    form.txtOutput.text = text.replace("A line", "B line");
    serveEvents();
    EXPECT_TRUE(endInView()) << "a text of the same length moves no selection";
}

TEST_F(BoundControls, AButtonIsAsNarrowAsWhatItSaysInItsFont) {
    auto& button = widget<QPushButton>(form.cmdAttach);
    const auto beside = [&] {
        const int text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
        return button.minimumSizeHint().width() - text;
    };
    const int room = beside();
    EXPECT_GT(room, 0);
    button.setText("What takes far more room than before");
    EXPECT_EQ(beside(), room);
    button.setFont(QFont("DejaVu Sans", 24));
    EXPECT_EQ(beside(), room);
}

TEST_F(BoundControls, ComboBoxGoesBothWays) {
    int clicks = 0;
    form.cmbType.Click = [&] { ++clicks; };
    auto& combo = widget<QComboBox>(form.cmbType);
    EXPECT_EQ(combo.currentText(), "DVD-ROM");
    form.cmbType.listIndex = 0;
    EXPECT_EQ(combo.currentText(), "CD-ROM");
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(form.cmbType.listIndex, 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(BoundControls, WhatDropsDownIsMadeWhenItDoes) {
    auto& combo = widget<QComboBox>(form.cmbType);
    EXPECT_EQ(combo.findChild<QAbstractItemView*>(), nullptr);
    combo.showPopup();
    EXPECT_NE(combo.findChild<QAbstractItemView*>(), nullptr);
    combo.hidePopup();
}

TEST_F(BoundControls, FillingAComboBoxChoosesNothing) {
    int clicks = 0;
    form.cmbOptical.Click = [&] { ++clicks; };
    form.cmbOptical.addItem("D: [The Lighthouse Keeper]");
    form.cmbOptical.addItem("E: [Paper & Dragons]");
    EXPECT_EQ(widget<QComboBox>(form.cmbOptical).count(), 2);
    EXPECT_EQ(widget<QComboBox>(form.cmbOptical).currentIndex(), -1);
    form.cmbOptical.listIndex = 1;
    form.cmbOptical.clear();
    EXPECT_EQ(widget<QComboBox>(form.cmbOptical).count(), 0);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BoundControls, TimerTicksWhileItIsOn) {
    int ticks = 0;
    form.tmrCompat.Tick = [&] {
        if (++ticks == 3)
            form.tmrCompat.enabled = false;
    };
    form.tmrCompat.interval = 1;
    form.tmrCompat.enabled = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    EXPECT_FALSE(window.findChild<QTimer*>("tmrCompat")->isActive());
}

TEST_F(BoundControls, FontsAndColoursOfAControlComeAndGo) {
    auto& button = widget<QPushButton>(form.cmdAbout);
    const QFont before = button.font();
    const QColor ink = button.palette().color(QPalette::ButtonText);
    form.cmdAbout.font = ui::Font{"DejaVu Sans", 12, true, false};
    form.cmdAbout.foreColor = 0x0000ff;
    EXPECT_EQ(button.font().pointSizeF(), 12);
    EXPECT_TRUE(button.font().bold());
    EXPECT_EQ(button.palette().color(QPalette::ButtonText), QColor(255, 0, 0));
    form.cmdAbout.font = std::nullopt;
    form.cmdAbout.foreColor = std::nullopt;
    EXPECT_EQ(button.font(), before);
    EXPECT_EQ(button.palette().color(QPalette::ButtonText), ink);
}

TEST_F(BoundControls, SystemColoursAreTheDesktops) {
    form.cmdAbout.backColor = -2147483633;
    form.cmdAbout.foreColor = -2147483630;
    const QPalette& colors = widget<QPushButton>(form.cmdAbout).palette();
    EXPECT_EQ(colors.color(QPalette::Button), QApplication::palette().color(QPalette::Window));
    EXPECT_EQ(colors.color(QPalette::ButtonText), QApplication::palette().color(QPalette::ButtonText));
}

TEST_F(BoundControls, HidingAFocusedBoxChangesNothingInTheModel) {
    int changes = 0;
    form.txtIP.Change = [&] { ++changes; };
    widget<QLineEdit>(form.txtIP).setFocus();
    form.txtIP.visible = false;
    form.txtIP.enabled = false;
    serveEvents();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(form.txtIP.text, "192.168.0.10");
}

} // namespace tarnwell::view

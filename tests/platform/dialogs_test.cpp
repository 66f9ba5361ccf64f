#include "platform/dialogs.h"
#include "platform/helpers.h"
#include "support/gtest_qt.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

namespace tarnwell {
namespace {

using test::colorOfTheWindows;
using test::DialogsTest;
using test::kCoral;
using test::runProgram;
using test::whenOpen;

using Open = std::function<void(QtDialogs&)>;

std::vector<Open> waysToOpenABox() {
    return {[](QtDialogs& dialogs) { dialogs.message("text", MessageIcon::Exclamation, "title"); },
            [](QtDialogs& dialogs) { dialogs.question("text", "title", MessageIcon::Exclamation); },
            [](QtDialogs& dialogs) { dialogs.input("prompt", "title", "text"); },
            [](QtDialogs& dialogs) { dialogs.openFile({}); },
            [](QtDialogs& dialogs) { dialogs.saveFile({}); },
            [](QtDialogs& dialogs) { dialogs.chooseFolder({}); },
            [](QtDialogs& dialogs) { dialogs.chooseFont({}); },
            [](QtDialogs& dialogs) { dialogs.chooseColor(0); }};
}

TEST_F(DialogsTest, AnInputIsFilledAndGivesWhatTheUserHasWritten) {
    const QString command = "delete hdd1: \"<b>Lantern & Quill</b>\"";
    whenOpen<QInputDialog>([&](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Edit command");
        EXPECT_EQ(box.labelText(), "Make changes and click OK to save.");
        auto* const line = box.findChild<QLineEdit*>();
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->text(), command);
        EXPECT_GT(line->width(), line->fontMetrics().horizontalAdvance(command));
        line->setText("  x  ");
        box.accept();
    });
    EXPECT_EQ(dialogs_.input("Make changes and click OK to save.", "Edit command", command), "  x  ");
}

TEST_F(DialogsTest, AnInputGivesOneLineWhateverWasPasted) {
    whenOpen<QInputDialog>([](QInputDialog& box) {
        box.findChild<QLineEdit*>()->setText("query\r\nhdd1:\n");
        box.accept();
    });
    EXPECT_EQ(dialogs_.input("prompt", "title", "text"), "query hdd1:");
}

TEST_F(DialogsTest, ACancelledInputGivesNothing) {
    whenOpen<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(dialogs_.input("prompt", "title", "text"), std::nullopt);
}

TEST_F(DialogsTest, AFontIsChosenFromTheOneThatItStartsAt) {
    whenOpen<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().pointSize(), 8);
        EXPECT_TRUE(dialog.currentFont().bold());
        QFont font("DejaVu Serif", 11);
        font.setItalic(true);
        dialog.setCurrentFont(font);
        dialog.accept();
    });
    EXPECT_EQ(dialogs_.chooseFont({"DejaVu Sans", 8.25, true, false}),
              (ui::Font{"DejaVu Serif", 11, false, true}));
    whenOpen<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().family(), QApplication::font().family());
        dialog.reject();
    });
    EXPECT_EQ(dialogs_.chooseFont({}), std::nullopt);
}

TEST_F(DialogsTest, AColourIsChosenFromTheOneThatItStartsAt) {
    whenOpen<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(255, 127, 80));
        dialog.setCurrentColor(QColor(0x44, 0x55, 0x66));
        dialog.accept();
    });
    EXPECT_EQ(dialogs_.chooseColor(kCoral), 0x665544);
    whenOpen<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs_.chooseColor(kCoral), std::nullopt);
}

TEST_F(DialogsTest, TheEndOfTheProgramClosesAnOpenDialogAndItsHandlerGoesNoFurther) {
    for (const Open& open : waysToOpenABox()) {
        QtEventPump pump;
        QtDialogs dialogs(pump, colorOfTheWindows);
        bool thrown = false;
        runProgram(pump, [&] {
            QTimer::singleShot(20, qApp, [&] { pump.end(); });
            try {
                open(dialogs);
            } catch (const ProgramEnded&) {
                thrown = true;
            }
        });
        EXPECT_TRUE(thrown);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_THROW(open(dialogs), ProgramEnded) << "and none is opened any more";
    }
}

/// A box that shows how far a thing has come.
class ProgressBoxTest : public DialogsTest {
protected:
    void open() {
        box_ = dialogs_.progress("Add to Job Queue", [this] { ++cancels_; });
        box_->show("Reading a.iso", 3, 100);
        pump_.pump();
    }
    static QDialog& shown() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            throw std::runtime_error("no box is up");
        return *dialog;
    }
    template <class Widget>
    static Widget& part() {
        return *shown().findChild<Widget*>();
    }

    static void press(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&shown(), &event);
    }

    QWidget window_;
    std::unique_ptr<ProgressBox> box_;
    int cancels_ = 0;
};

TEST_F(ProgressBoxTest, ShowsWhatIsUnderWayAndHowFarItHasCome) {
    open();
    EXPECT_EQ(shown().windowTitle(), "Add to Job Queue");
    EXPECT_EQ(part<QLabel>().text(), "Reading a.iso");
    EXPECT_EQ(part<QProgressBar>().value(), 3);
    EXPECT_EQ(part<QProgressBar>().maximum(), 100);
    const QSize size = shown().size();
    box_->show("Reading " + QString(300, 'x') + ".iso", 4, 100);
    pump_.pump();
    EXPECT_EQ(shown().size(), size);
    EXPECT_TRUE(part<QLabel>().text().endsWith(".iso"));
    EXPECT_EQ(part<QProgressBar>().value(), 4);
}

TEST_F(ProgressBoxTest, ShowsThatNobodyKnowsHowFar) {
    open();
    box_->show("Looking for images", 0, 0);
    EXPECT_EQ(part<QProgressBar>().maximum(), 0);
}

TEST_F(ProgressBoxTest, StaysUntilItsOwnerTakesItAway) {
    open();
    part<QPushButton>().click();
    press(Qt::Key_Escape);
    shown().close();
    pump_.pump();
    EXPECT_EQ(cancels_, 3);
    EXPECT_TRUE(shown().isVisible());
    box_.reset();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ProgressBoxTest, KeepsTheUserFromTheOtherWindows) {
    window_.show();
    pump_.pump();
    open();
    EXPECT_TRUE(shown().isModal());
    EXPECT_EQ(shown().windowModality(), Qt::ApplicationModal);
}

/// The user is at another program, while this one has some windows up.
class InactiveProgramTest : public DialogsTest {
protected:
    InactiveProgramTest() {
        onTop_.setWindowFlag(Qt::WindowStaysOnTopHint);
        for (QWidget* const window : {&first_, &onTop_, &last_})
            window->show();
        leave();
    }

    static void leave() {
        QCoreApplication::processEvents();
        QApplication::setActiveWindow(nullptr);
    }

    const QWidget* ownerOfAMessage() {
        const QWidget* owner = nullptr;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            owner = box.parentWidget();
            box.accept();
        });
        dialogs_.message("text", MessageIcon::Exclamation, "title");
        return owner;
    }

    QWidget first_, onTop_, last_;
};

TEST_F(InactiveProgramTest, AMessageIsNotCoveredByAWindowThatStaysOnTop) {
    EXPECT_EQ(ownerOfAMessage(), &onTop_);
}

TEST_F(InactiveProgramTest, AMessageBelongsToAWindowThatIsToBeSeen) {
    onTop_.showMinimized();
    last_.hide();
    leave();
    EXPECT_EQ(ownerOfAMessage(), &first_);
    first_.hide();
    leave();
    EXPECT_EQ(ownerOfAMessage(), nullptr);
}

TEST_F(InactiveProgramTest, AMessageIsNotCoveredByOneThatIsOpen) {
    const QWidget* owner = nullptr;
    whenOpen<QMessageBox>([&](QMessageBox& first) {
        leave();
        owner = ownerOfAMessage();
        EXPECT_EQ(owner, &first);
        first.accept();
    });
    dialogs_.message("first", MessageIcon::Exclamation, "title");
    EXPECT_NE(owner, nullptr);
}

TEST_F(InactiveProgramTest, EveryBoxBelongsToTheWindowThatStaysOnTop) {
    for (const Open& open : waysToOpenABox()) {
        const QWidget* owner = nullptr;
        whenOpen<QDialog>([&](QDialog& dialog) {
            owner = dialog.parentWidget();
            dialog.reject();
        });
        leave();
        open(dialogs_);
        EXPECT_EQ(owner, &onTop_);
    }
}

} // namespace
} // namespace tarnwell

#include "platform/helpers.h"
#include "platform/qt/file_filter.h"
#include "platform/qt/message_text.h"
#include "platform/qt/qt_dialogs.h"
#include "support/gtest_qt.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

using test::runProgram;

TEST(FileFilter, PairsOfWordsAndPatternsBecomeTheToolkitsFilters) {
    EXPECT_EQ(toolkitFilters("Wave files (*.wav)|*.wav|All Files (*.*)|*.*|"),
              QStringList({"Wave files (*.wav)", "All Files (*)"}));
    EXPECT_EQ(toolkitFilters("Images|*.iso;*.bin; *.cue"), QStringList({"Images (*.iso *.bin *.cue)"}));
    EXPECT_EQ(toolkitFilters("Images (ISO) of games|*.iso"), QStringList({"Images (ISO) of games (*.iso)"}));
}

TEST(FileFilter, WhatIsNoPairIsPassedOver) {
    EXPECT_EQ(toolkitFilters(""), QStringList());
    EXPECT_EQ(toolkitFilters("words"), QStringList());
    EXPECT_EQ(toolkitFilters("words|"), QStringList());
    EXPECT_EQ(toolkitFilters("words|*.a|more words"), QStringList({"words (*.a)"}));
}

TEST(MessageText, AnOrdinaryTextIsShownAsItIs) {
    const QString text = "tarnwell.exe was not found.\nPlace it in the same directory & try again. <b>";
    EXPECT_EQ(fitMessageText(text).shown, text);
    EXPECT_EQ(fitMessageText(text).whole, "");
}

TEST(MessageText, ALongWordMayBeBroken) {
    const QString path = "/home/" + QString(200, u'a');
    QString shown = fitMessageText(path).shown;
    EXPECT_GT(shown.size(), path.size());
    EXPECT_EQ(shown.remove(QChar(0x200B)), path);
}

TEST(MessageText, AVeryLongTextIsCutAndKeptWhole) {
    const QString lines = QStringLiteral("line\n").repeated(500);
    EXPECT_LE(fitMessageText(lines).shown.count(u'\n'), 20);
    EXPECT_EQ(fitMessageText(lines).whole, lines);
    const QString words = QStringLiteral("word ").repeated(5000);
    EXPECT_LT(fitMessageText(words).shown.size(), 1100);
    EXPECT_EQ(fitMessageText(words).whole, words);
}

template <typename Dialog>
Dialog* openDialog() {
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
}

/// Does something to the dialog that comes up next, while the context lives.
template <typename Dialog>
void whenOpen(std::function<void(Dialog&)> act, QObject* context = qApp) {
    QTimer::singleShot(1, context, [act = std::move(act), context] {
        auto* const dialog = openDialog<Dialog>();
        dialog != nullptr ? act(*dialog) : whenOpen<Dialog>(act, context);
    });
}

constexpr std::int32_t kCoral = -7; ///< known to the windows alone

QColor colorOfTheWindows(std::int32_t color) {
    return color == kCoral ? QColor(255, 127, 80) : QColor();
}

class DialogsTest : public testing::Test {
protected:
    QtEventPump pump_;
    QtDialogs dialogs_{pump_, colorOfTheWindows};
};

TEST_F(DialogsTest, AMessageShowsItsPlainTextUntilTheUserConfirmsIt) {
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.text(), "<b>Device</b> & more");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Tarnwell GUI");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.parentWidget(), nullptr) << "no window is up";
        box.button(QMessageBox::Ok)->click();
    });
    dialogs_.message("<b>Device</b> & more", MessageIcon::Exclamation, "Tarnwell GUI");
    EXPECT_TRUE(seen);
}

TEST_F(DialogsTest, AStopMessageHasTheStopIcon) {
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.reject();
    });
    dialogs_.message("Unexpected error.", MessageIcon::Stop, "Tarnwell GUI");
    EXPECT_TRUE(seen);
}

TEST_F(DialogsTest, AMessageThatAsksSomethingOfTheUserHasTheQuestionMark) {
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.accept();
    });
    dialogs_.message("Leave this open.", MessageIcon::Question, "Tarnwell GUI");
    EXPECT_TRUE(seen);
}

TEST_F(DialogsTest, AQuestionIsAnsweredByYesOnly) {
    const auto answerBy = [this](const std::function<void(QMessageBox&)>& act) {
        whenOpen<QMessageBox>(act);
        return dialogs_.question("Delete <b>all</b>?", "Tarnwell GUI", MessageIcon::Exclamation);
    };
    EXPECT_TRUE(answerBy([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Delete <b>all</b>?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Tarnwell GUI");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        box.button(QMessageBox::Yes)->click();
    }));
    EXPECT_FALSE(answerBy([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }));
    EXPECT_FALSE(answerBy([](QMessageBox& box) { box.close(); }));
    EXPECT_FALSE(answerBy([](QMessageBox& box) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &escape);
    }));
}

TEST_F(DialogsTest, TheButtonsOfALongQuestionAreOnTheScreen) {
    const QString text = "Delete these?\r\n\r\n" + (QString(300, u'x') + "\r\n").repeated(500);
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        const auto expectInSight = [&box] {
            const QPushButton* yes = qobject_cast<QPushButton*>(box.button(QMessageBox::Yes));
            EXPECT_TRUE(
                box.screen()->availableGeometry().contains(QRect(yes->mapToGlobal(QPoint()), yes->size())));
        };
        expectInSight();
        EXPECT_EQ(box.detailedText(), QString(text).remove(u'\r')) << "all of it can be unfolded";
        for (QAbstractButton* button : box.buttons()) {
            if (box.buttonRole(button) == QMessageBox::ActionRole)
                button->click();
        }
        QCoreApplication::processEvents();
        expectInSight();
        box.reject();
    });
    EXPECT_FALSE(dialogs_.question(text, "title", MessageIcon::Exclamation));
}

TEST_F(DialogsTest, AMessageBelongsToTheWindowThatTheUserIsAt) {
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(test::pumpUntil([&] { return QApplication::activeWindow() == &window; }));
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        box.accept();
    });
    dialogs_.message("text", MessageIcon::Exclamation, "title");
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
    using Open = std::function<void(QtDialogs&)>;
    for (const Open& open :
         {Open([](QtDialogs& dialogs) { dialogs.question("text", "title", MessageIcon::Exclamation); }),
          Open([](QtDialogs& dialogs) { dialogs.input("prompt", "title", "text"); }),
          Open([](QtDialogs& dialogs) { dialogs.openFile({}); }),
          Open([](QtDialogs& dialogs) { dialogs.saveFile({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseFolder({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseFont({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseColor(0); })}) {
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

TEST_F(DialogsTest, AMessageOfAnyLengthFitsTheScreen) {
    for (const QString& text : {QString(10'000, u'x'), QStringLiteral("line\n").repeated(1000),
                                QStringLiteral("some words ").repeated(1000)}) {
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            const QSize screen = box.screen()->availableSize();
            EXPECT_LE(box.frameSize().width(), screen.width());
            EXPECT_LE(box.frameSize().height(), screen.height());
            EXPECT_EQ(box.detailedText(), text);
            box.accept();
        });
        dialogs_.message(text, MessageIcon::Exclamation, "title");
    }
}

TEST_F(DialogsTest, EventsAreServedWhileAMessageIsOpen) {
    int served = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++served == 3) {
            openDialog<QMessageBox>()->accept();
        }
    });
    timer.start(5);
    dialogs_.message("text", MessageIcon::Exclamation, "title");
    EXPECT_EQ(served, 3);
}

TEST_F(DialogsTest, AMessageMayComeUpOverAnother) {
    QStringList closed;
    whenOpen<QMessageBox>([&](QMessageBox& first) {
        QTimer::singleShot(0, qApp, [&] {
            ASSERT_EQ(openDialog<QMessageBox>()->text(), "second");
            openDialog<QMessageBox>()->accept();
        });
        dialogs_.message("second", MessageIcon::Exclamation, "title");
        closed += "second";
        first.accept();
    });
    dialogs_.message("first", MessageIcon::Exclamation, "title");
    closed += "first";
    EXPECT_EQ(closed, QStringList({"second", "first"}));
}

TEST_F(DialogsTest, AnInputIsFilledAndGivesWhatTheUserHasWritten) {
    const QString command = "delete hdd1: \"<b>Ratchet & Clank</b>\"";
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

TEST_F(DialogsTest, ACancelledInputGivesNothing) {
    whenOpen<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(dialogs_.input("prompt", "title", "text"), std::nullopt);
}

TEST_F(DialogsTest, TheEndOfTheProgramClosesAnOpenDialogAndItsHandlerGoesNoFurther) {
    using Open = std::function<void(QtDialogs&)>;
    for (const Open& open :
         {Open([](QtDialogs& dialogs) { dialogs.message("text", MessageIcon::Exclamation, "title"); }),
          Open([](QtDialogs& dialogs) { dialogs.question("text", "title", MessageIcon::Exclamation); }),
          Open([](QtDialogs& dialogs) { dialogs.input("prompt", "title", "text"); }),
          Open([](QtDialogs& dialogs) { dialogs.openFile({}); }),
          Open([](QtDialogs& dialogs) { dialogs.saveFile({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseFolder({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseFont({}); }),
          Open([](QtDialogs& dialogs) { dialogs.chooseColor(0); })}) {
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

class OpenFileTest : public DialogsTest {
protected:
    void SetUp() override {
        QFile file(folder_.filePath("game.iso"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        pump_.pump();
    }

    /// Types a name and presses Enter; cancels if the dialog stays open.
    void type(const QString& name) {
        whenOpen<QFileDialog>([name](QFileDialog& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(edit, nullptr);
            edit->setText(name);
            const auto giveUp = [&dialog](QMessageBox& complaint) {
                complaint.accept();
                QTimer::singleShot(0, &dialog, &QDialog::reject);
            };
            whenOpen<QMessageBox>(giveUp, &dialog);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }

    OpenFileRequest request() const {
        return {.title = "Select Image",
                .filter = "Images|*.iso|All Files (*.*)|*.*|",
                .folder = folder_.path(),
                .extension = "*.iso",
                .mustExist = true};
    }

    QString whole(const QString& name) const { return test::native(folder_.filePath(name)); }

    QTemporaryDir folder_;
};

TEST_F(OpenFileTest, ShowsWhatWasAskedFor) {
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select Image");
        EXPECT_EQ(dialog.nameFilters(), QStringList({"Images (*.iso)", "All Files (*)"}));
        EXPECT_EQ(dialog.directory().canonicalPath(), QFileInfo(folder_.path()).canonicalFilePath());
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    EXPECT_EQ(dialogs_.openFile(request()), std::nullopt);
}

TEST_F(OpenFileTest, GivesThePathOfTheChosenFile) {
    type(folder_.filePath("game.iso"));
    EXPECT_EQ(dialogs_.openFile(request()), whole("game.iso"));
}

TEST_F(OpenFileTest, AFileThatMustExistIsInsistedOn) {
    type(folder_.filePath("missing.iso"));
    EXPECT_EQ(dialogs_.openFile(request()), std::nullopt);
}

TEST_F(OpenFileTest, AFileThatNeedNotExistMayBeNamed) {
    OpenFileRequest lenient = request();
    lenient.mustExist = false;
    type(folder_.filePath("missing.iso"));
    EXPECT_EQ(dialogs_.openFile(lenient), whole("missing.iso"));
}

TEST_F(OpenFileTest, ANameWithoutAnExtensionGetsOne) {
    type("game");
    EXPECT_EQ(dialogs_.openFile(request()), whole("game.iso"));
    OpenFileRequest lenient = request();
    lenient.mustExist = false;
    type("missing");
    EXPECT_EQ(dialogs_.openFile(lenient), whole("missing.iso"));
    type("missing.nrg");
    EXPECT_EQ(dialogs_.openFile(lenient), whole("missing.nrg"));
}

TEST_F(OpenFileTest, AFileWithoutAnExtensionKeepsItsName) {
    ASSERT_TRUE(QFile::copy(folder_.filePath("game.iso"), folder_.filePath("image")));
    OpenFileRequest lenient = request();
    lenient.mustExist = false;
    for (const OpenFileRequest& any : {request(), lenient}) {
        type("image");
        EXPECT_EQ(dialogs_.openFile(any), whole("image"));
    }
}

TEST_F(OpenFileTest, AskingForNothingInParticularOpensThePlatformsOwnDialog) {
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_FALSE(dialog.windowTitle().isEmpty());
        dialog.reject();
    });
    EXPECT_EQ(dialogs_.openFile({}), std::nullopt);
}

class SaveFileTest : public OpenFileTest {
protected:
    SaveFileRequest request() const {
        return {.title = "Save Image",
                .filter = "Images|*.iso|All Files (*.*)|*.*|",
                .folder = folder_.path(),
                .fileName = "new game.iso",
                .extension = "*.iso",
                .askBeforeOverwriting = true};
    }
    /// Takes what the dialog proposes; answers its question, if there is one.
    void accept(QMessageBox::StandardButton answer) {
        whenOpen<QFileDialog>([answer](QFileDialog& dialog) {
            const auto reply = [&dialog, answer](QMessageBox& question) {
                question.button(answer)->click();
                if (answer == QMessageBox::No)
                    QTimer::singleShot(0, &dialog, &QDialog::reject);
            };
            whenOpen<QMessageBox>(reply, &dialog);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }
};

TEST_F(SaveFileTest, ProposesWhatWasAskedFor) {
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save Image");
        EXPECT_EQ(dialog.nameFilters(), QStringList({"Images (*.iso)", "All Files (*)"}));
        EXPECT_EQ(dialog.directory().canonicalPath(), QFileInfo(folder_.path()).canonicalFilePath());
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "new game.iso");
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(dialogs_.saveFile(request()), whole("new game.iso"));
    EXPECT_FALSE(QFile::exists(folder_.filePath("new game.iso")));
}

TEST_F(SaveFileTest, ANameWithoutAnExtensionGetsOne) {
    type("typed");
    EXPECT_EQ(dialogs_.saveFile(request()), whole("typed.iso"));
    type("typed.cue");
    EXPECT_EQ(dialogs_.saveFile(request()), whole("typed.cue"));
    SaveFileRequest plain = request();
    plain.extension = "txt";
    type("typed");
    EXPECT_EQ(dialogs_.saveFile(plain), whole("typed.txt"));
}

TEST_F(SaveFileTest, AFileThatExistsIsAskedAboutFirst) {
    SaveFileRequest existing = request();
    existing.fileName = "game.iso";
    accept(QMessageBox::No);
    EXPECT_EQ(dialogs_.saveFile(existing), std::nullopt);
    accept(QMessageBox::Yes);
    EXPECT_EQ(dialogs_.saveFile(existing), whole("game.iso"));
    EXPECT_TRUE(QFile::exists(folder_.filePath("game.iso")));
}

TEST_F(SaveFileTest, UnlessNobodyWantsToAsk) {
    SaveFileRequest existing = request();
    existing.fileName = "game.iso";
    existing.askBeforeOverwriting = false;
    accept(QMessageBox::No);
    EXPECT_EQ(dialogs_.saveFile(existing), whole("game.iso"));
}

TEST_F(SaveFileTest, ACancelledDialogGivesNothing) {
    whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs_.saveFile(request()), std::nullopt);
}

TEST_F(SaveFileTest, ANameThatIsNoFileNameIsProposedAsItIs) {
    for (const QString& name : {QStringLiteral("AC/DC.iso"), QString(300, u'x')}) {
        SaveFileRequest odd = request();
        odd.fileName = name;
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), name);
            EXPECT_EQ(dialog.directory().canonicalPath(), QFileInfo(folder_.path()).canonicalFilePath());
            dialog.reject();
        });
        EXPECT_EQ(dialogs_.saveFile(odd), std::nullopt);
    }
}

TEST_F(SaveFileTest, WithoutAFolderTheDialogStartsWhereItLastWas) {
    type("typed");
    dialogs_.saveFile(request());
    SaveFileRequest nowhere = request();
    nowhere.folder.clear();
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().canonicalPath(), QFileInfo(folder_.path()).canonicalFilePath());
        dialog.reject();
    });
    dialogs_.saveFile(nowhere);
}

TEST_F(DialogsTest, TheGravestQuestionWearsTheStopSignAndProposesNo) {
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.windowTitle(), "ARE YOU 100% SURE?");
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        QMetaObject::invokeMethod(box.defaultButton(), "click");
    });
    EXPECT_FALSE(dialogs_.question("text", "ARE YOU 100% SURE?", MessageIcon::Stop));
    EXPECT_TRUE(seen);
}

TEST_F(DialogsTest, AFolderIsChosenFromTheOneThatItStartsIn) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("images");
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select PS2 Game ISO directory");
        EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
        EXPECT_EQ(dialog.directory().canonicalPath(), QFileInfo(folder.path()).canonicalFilePath());
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("images");
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(dialogs_.chooseFolder({"Select PS2 Game ISO directory", folder.path()}),
              QDir::toNativeSeparators(folder.filePath("images")));
    whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs_.chooseFolder({}), std::nullopt);
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

} // namespace
} // namespace tarnwell

#include "platform/dialogs.h"
#include "platform/helpers.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

namespace tarnwell {
namespace {

using test::whenOpen;

class ChooseFolderTest : public test::DialogsTest {};

class OpenFileTest : public test::DialogsTest {
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

/// Where the dialogs start when nobody says where, after picks of two kinds in two folders.
class StartFolderTest : public SaveFileTest {
protected:
    void SetUp() override {
        SaveFileTest::SetUp();
        type("typed");
        ASSERT_TRUE(dialogs_.saveFile(request()));
        type("games");
        ASSERT_TRUE(dialogs_.saveFile({.filter = kTexts, .folder = other_.path()}));
    }
    static QString canonical(const QString& folder) { return QFileInfo(folder).canonicalFilePath(); }
    QString startOfSave(const QString& filter, const QString& folder = {}) {
        look();
        dialogs_.saveFile({.filter = filter, .folder = folder});
        return seen_;
    }
    QString startOfOpen(const QString& filter) {
        look();
        dialogs_.openFile({.filter = filter});
        return seen_;
    }
    QString startOfFolder() {
        look();
        dialogs_.chooseFolder({});
        return seen_;
    }
    void look() {
        whenOpen<QFileDialog>([this](QFileDialog& dialog) {
            seen_ = dialog.directory().canonicalPath();
            dialog.reject();
        });
    }

    static inline const QString kTexts = "Texts|*.txt|", kImages = "Games|*.ISO|";
    QTemporaryDir other_;
    QString seen_;
};

TEST_F(StartFolderTest, IsThatOfTheLastPickOfItsKind) {
    EXPECT_EQ(startOfSave(kImages), canonical(folder_.path()));
    EXPECT_EQ(startOfOpen(kImages), canonical(folder_.path()));
    EXPECT_EQ(startOfOpen(kTexts), canonical(other_.path()));
}

TEST_F(StartFolderTest, IsTheOneThatIsAskedForIfThereIsOne) {
    EXPECT_EQ(startOfSave(kImages, other_.path()), canonical(other_.path()));
}

TEST_F(StartFolderTest, StaysWhenADialogIsCancelled) {
    startOfSave(kImages, other_.path());
    EXPECT_EQ(startOfSave(kImages), canonical(folder_.path()));
}

TEST_F(StartFolderTest, IsNotAFolderThatHasGone) {
    ASSERT_TRUE(folder_.remove());
    EXPECT_TRUE(QFileInfo(startOfOpen(kImages)).isDir());
}

TEST_F(StartFolderTest, OfTheFolderDialogIsTheFolderThatWasPicked) {
    type(other_.path());
    ASSERT_TRUE(dialogs_.chooseFolder({.folder = folder_.path()}));
    type("texts");
    ASSERT_TRUE(dialogs_.saveFile({.filter = kTexts, .folder = folder_.path()}));
    EXPECT_EQ(startOfFolder(), canonical(other_.path()));
}

TEST_F(OpenFileTest, APatternFitsNamesInCapitalsToo) {
    ASSERT_TRUE(QFile::copy(folder_.filePath("game.iso"), folder_.filePath("LOUD.ISO")));
    ASSERT_TRUE(QFile::copy(folder_.filePath("game.iso"), folder_.filePath("loud.txt")));
    OpenFileRequest images = request();
    images.filter = "Images|*.iso|";
    QStringList listed;
    whenOpen<QFileDialog>([&listed](QFileDialog& dialog) {
        const auto* const list = dialog.findChild<QListView*>("listView");
        test::pumpUntil([list] { return list->model()->rowCount(list->rootIndex()) >= 2; });
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            listed += list->model()->index(row, 0, list->rootIndex()).data().toString();
        dialog.reject();
    });
    dialogs_.openFile(images);
    listed.sort();
    EXPECT_EQ(listed, QStringList({"LOUD.ISO", "game.iso"}));
}

TEST_F(ChooseFolderTest, AFolderIsChosenFromTheOneThatItStartsIn) {
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

} // namespace
} // namespace tarnwell

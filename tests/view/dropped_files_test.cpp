#include "view/view_fixture.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTreeView>
#include <QUrl>
#include <QWindow>

namespace tarnwell::view {

namespace {

constexpr Qt::DropActions kUsual = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

/// Drags come to the window as from the desktop, which knows nothing of the widgets in it.
class DroppedFiles : public MainWindow {
protected:
    DroppedFiles() {
        data_.setUrls({QUrl::fromLocalFile("/games/a.iso"), QUrl::fromLocalFile("/games/b c.iso")});
        form.FilesOffered = [this](const QStringList& paths, bool& takes) {
            offered_ = paths;
            takes = takes_;
        };
        form.FilesDropped = [this](const QStringList& paths) { dropped_ += paths; };
    }

    struct Answer {
        bool taken;
        Qt::DropAction action;
    };
    template <class Event>
    Answer send(const QWidget& target, Qt::DropActions allowed) {
        const QPoint place = target.mapTo(&window, target.rect().center());
        Event event(place, allowed, &data_, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction); // what a file manager proposes on one disk
        QApplication::sendEvent(window.windowHandle(), &event);
        return {event.isAccepted(), event.dropAction()};
    }
    void leave() {
        QDragLeaveEvent event;
        QApplication::sendEvent(window.windowHandle(), &event);
    }
    bool hold(const QWidget& target, Qt::DropActions allowed = kUsual) {
        const bool taken = send<QDragEnterEvent>(target, allowed).taken;
        leave();
        return taken;
    }
    Answer drop(const QWidget& target) {
        send<QDragEnterEvent>(target, kUsual);
        send<QDragMoveEvent>(target, kUsual);
        return send<QDropEvent>(target, kUsual);
    }

    QMimeData data_;
    bool takes_ = true;
    QStringList offered_, dropped_;
};

const QStringList kBoth = {"/games/a.iso", "/games/b c.iso"};

} // namespace

TEST_F(DroppedFiles, AnyPlaceOfTheWindowTakesThem) {
    form.chkOutput.value = 1;
    form.height = ui::FrmMain::kTallHeight;
    serveEvents();
    int places = 0;
    const auto lookAtPage = [&] {
        serveEvents();
        for (const QWidget* child : window.findChildren<QWidget*>()) {
            if (!child->isVisible() || child->isWindow())
                continue;
            ++places;
            dropped_.clear();
            EXPECT_TRUE(drop(*child).taken) << child->objectName().toStdString();
            serveEvents();
            EXPECT_EQ(dropped_, kBoth) << child->objectName().toStdString();
        }
    };
    lookAtPage();
    form.optBrowse.value = true;
    form.fmInstall.visible = false;
    form.fmBrowse.visible = true;
    lookAtPage();
    form.fmJob.visible = true;
    lookAtPage();
    EXPECT_GT(places, 100);
}

TEST_F(DroppedFiles, TheDesktopIsAnsweredBeforeTheWorkBegins) {
    EXPECT_TRUE(drop(window).taken);
    EXPECT_EQ(dropped_, QStringList());
    serveEvents();
    EXPECT_EQ(dropped_, kBoth);
}

TEST_F(DroppedFiles, TheyAreCopiedWhateverTheDesktopProposes) {
    EXPECT_EQ(drop(window).action, Qt::CopyAction) << "a move would delete them";
    EXPECT_FALSE(hold(window, Qt::MoveAction));
    EXPECT_FALSE(hold(window, Qt::LinkAction));
}

TEST_F(DroppedFiles, TheDesktopShowsThatTheyAreNotTaken) {
    takes_ = false;
    EXPECT_FALSE(hold(window));
    EXPECT_EQ(offered_, kBoth);
    EXPECT_FALSE(hold(widget<QLineEdit>(form.txtGameName)));
}

TEST_F(DroppedFiles, WorkThatBeginsMeanwhileRefusesThem) {
    send<QDragEnterEvent>(window, kUsual);
    takes_ = false;
    EXPECT_FALSE(send<QDragMoveEvent>(window, kUsual).taken);
    leave();
    takes_ = true;
    EXPECT_TRUE(drop(window).taken);
    takes_ = false;
    serveEvents();
    EXPECT_EQ(dropped_, QStringList()) << "as it stands when it is their turn";
}

TEST_F(DroppedFiles, AnOpenBoxRefusesThem) {
    QDialog box(&window);
    box.setModal(true);
    box.show();
    serveEvents();
    EXPECT_FALSE(hold(window));
    box.hide();
    EXPECT_TRUE(hold(window));
}

TEST_F(DroppedFiles, PagesOfTheWebAreNone) {
    data_.setUrls({QUrl("https://example.org/a.iso")});
    EXPECT_FALSE(hold(window));
    EXPECT_EQ(offered_, QStringList());
}

TEST_F(DroppedFiles, ATextBoxMakesNoTextOfThem) {
    auto& edit = widget<QLineEdit>(form.txtGameName);
    form.txtGameName.text = QString("Lantern");
    EXPECT_TRUE(drop(edit).taken);
    serveEvents();
    EXPECT_EQ(edit.text(), "Lantern");
    EXPECT_EQ(dropped_, kBoth);
}

TEST_F(DroppedFiles, ATextBoxStillTakesText) {
    auto& edit = widget<QLineEdit>(form.txtGameName);
    form.txtGameName.text = QString();
    data_.clear();
    data_.setText("Lantern");
    drop(edit);
    EXPECT_EQ(edit.text(), "Lantern");
    EXPECT_FALSE(hold(window));
}

TEST_F(DroppedFiles, NorDoesTheNameOfAGameThatIsBeingEdited) {
    samples::games(form, 3);
    form.fmInstall.visible = false;
    form.fmBrowse.visible = true;
    serveEvents();
    auto& list = widget<QTreeView>(form.lstHD);
    list.edit(list.model()->index(0, 0));
    serveEvents();
    auto* const editor = list.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    const QString name = editor->text();
    EXPECT_TRUE(drop(*editor).taken);
    EXPECT_EQ(editor->text(), name);
}

} // namespace tarnwell::view

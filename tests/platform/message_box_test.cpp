#include "platform/dialogs.h"
#include "platform/helpers.h"
#include "support/gtest_qt.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace tarnwell {
namespace {

using test::openDialog;
using test::whenOpen;

class MessageBoxTest : public test::DialogsTest {};

TEST_F(MessageBoxTest, AMessageShowsItsPlainTextUntilTheUserConfirmsIt) {
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

TEST_F(MessageBoxTest, AStopMessageHasTheStopIcon) {
    bool seen = false;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.reject();
    });
    dialogs_.message("Unexpected error.", MessageIcon::Stop, "Tarnwell GUI");
    EXPECT_TRUE(seen);
}

TEST_F(MessageBoxTest, AMessageThatAsksSomethingOfTheUserHasTheQuestionMark) {
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

TEST_F(MessageBoxTest, AQuestionIsAnsweredByYesOnly) {
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

TEST_F(MessageBoxTest, TheButtonsOfALongQuestionAreOnTheScreen) {
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

TEST_F(MessageBoxTest, TheGravestQuestionWearsTheStopSignAndProposesNo) {
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

TEST_F(MessageBoxTest, AMessageBelongsToTheWindowThatTheUserIsAt) {
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

TEST_F(MessageBoxTest, AMessageOfAnyLengthFitsTheScreen) {
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

TEST_F(MessageBoxTest, EventsAreServedWhileAMessageIsOpen) {
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

TEST_F(MessageBoxTest, AMessageMayComeUpOverAnother) {
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

} // namespace
} // namespace tarnwell

#include "tour/gestures.h"
#include "tour/seen_widgets.h"
#include "tour/user.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

namespace tarnwell::tour {

namespace {

/// Of the open dialog for files.
QLineEdit& fileNameEdit() {
    return *openDialog<QFileDialog>()->findChild<QLineEdit*>("fileNameEdit");
}

} // namespace

void User::waitForFileDialog() {
    waitFor("the dialog for files", [] { return openDialog<QFileDialog>() != nullptr; });
}

void User::pickFile(const QString& path) {
    waitForFileDialog();
    look([&] { typeInto(fileNameEdit(), path); });
    acceptFile();
}

QString User::acceptFile() {
    waitForFileDialog();
    QString name = look([] { return fileNameEdit().text(); });
    act([] { sendKey(fileNameEdit(), Qt::Key_Return, {}, "\r"); });
    waitFor("the dialog for files to close", [] { return openDialog<QFileDialog>() == nullptr; });
    return name;
}

void User::pickColor(const QColor& color) {
    waitFor("the dialog for colours", [] { return openDialog<QColorDialog>() != nullptr; });
    act([color] {
        auto* const dialog = openDialog<QColorDialog>();
        dialog->setCurrentColor(color);
        dialog->accept();
    });
    waitFor("the dialog for colours to close", [] { return openDialog<QColorDialog>() == nullptr; });
}

void User::pickFont(const QFont& font) {
    waitFor("the dialog for fonts", [] { return openDialog<QFontDialog>() != nullptr; });
    act([font] {
        auto* const dialog = openDialog<QFontDialog>();
        dialog->setCurrentFont(font);
        dialog->accept();
    });
    waitFor("the dialog for fonts to close", [] { return openDialog<QFontDialog>() == nullptr; });
}

QString User::confirmMessage() {
    return closeMessage(QMessageBox::Ok);
}

QString User::agree() {
    return closeMessage(QMessageBox::Yes);
}

QString User::closeMessage(int button) {
    waitFor("a message", [] { return openDialog<QMessageBox>() != nullptr; });
    auto* const box = look([] { return openDialog<QMessageBox>(); });
    QString text = look([&] { return box->text().remove(QChar(0x200B)); });
    look([&] {
        QAbstractButton* const pressed = box->button(static_cast<QMessageBox::StandardButton>(button));
        if (!pressed)
            throw Stuck("The message has no such button: " + text);
        sendClick(*pressed, pressed->rect().center());
    });
    waitFor("the message to close", [&] { return openDialog<QMessageBox>() != box; });
    return text;
}

void User::answer(const QString& line) {
    waitFor("a box that asks for a line", [] { return openDialog<QInputDialog>() != nullptr; });
    look([&] {
        auto* const edit = openDialog<QInputDialog>()->findChild<QLineEdit*>();
        typeInto(*edit, line);
        sendKey(*edit, Qt::Key_Return, {}, "\r");
    });
    waitFor("the box to close", [] { return openDialog<QInputDialog>() == nullptr; });
}

} // namespace tarnwell::tour

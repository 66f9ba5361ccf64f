#include "platform/qt/qt_dialogs.h"

#include "platform/qt/file_filter.h"
#include "platform/qt/message_text.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFontMetrics>
#include <QInputDialog>

namespace tarnwell {

namespace {

QWidget* windowOfTheUser() {
    QWidget* const window = QApplication::activeWindow();
    return window != nullptr && window->isVisible() ? window : nullptr;
}

QMessageBox::Icon toolkitIcon(MessageIcon icon) {
    return icon == MessageIcon::Stop ? QMessageBox::Critical : QMessageBox::Warning;
}

} // namespace

void QtDialogs::message(const QString& text, MessageIcon icon, const QString& title) {
    show(text, toolkitIcon(icon), title, QMessageBox::Ok);
}

bool QtDialogs::question(const QString& text, const QString& title) {
    return show(text, QMessageBox::Warning, title, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QMessageBox::StandardButton QtDialogs::show(const QString& text, QMessageBox::Icon icon, const QString& title,
                                            QMessageBox::StandardButtons buttons) const {
    const MessageText fitted = fitMessageText(text);
    QMessageBox box(icon, title, fitted.shown, buttons, windowOfTheUser());
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(fitted.whole);
    box.setDefaultButton(QMessageBox::No); // where there is one: a stray Enter is no Yes
    return static_cast<QMessageBox::StandardButton>(waitFor(box));
}

std::optional<QString> QtDialogs::input(const QString& prompt, const QString& title, const QString& text) {
    constexpr int kCharacters = 80; // much of a usual command is in sight
    QInputDialog box(windowOfTheUser());
    box.setWindowTitle(title);
    box.setLabelText(prompt);
    box.setTextValue(text);
    box.resize(box.fontMetrics().averageCharWidth() * kCharacters, box.sizeHint().height());
    if (waitFor(box) != QDialog::Accepted)
        return std::nullopt;
    return box.textValue();
}

std::optional<QString> QtDialogs::openFile(const OpenFileRequest& request) {
    QFileDialog dialog(windowOfTheUser(), request.title, request.folder);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // a file that exists is what an open dialog is for
    return chooseFile(dialog, request.filter);
}

std::optional<QString> QtDialogs::saveFile(const SaveFileRequest& request) {
    QFileDialog dialog(windowOfTheUser(), request.title, request.folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askBeforeOverwriting);
    dialog.setDefaultSuffix(request.extension.mid(request.extension.lastIndexOf(u'.') + 1));
    dialog.selectFile(request.fileName);
    return chooseFile(dialog, request.filter);
}

std::optional<QString> QtDialogs::chooseFile(QFileDialog& dialog, const QString& filter) const {
    if (const QStringList filters = toolkitFilters(filter); !filters.isEmpty()) {
        dialog.setNameFilters(filters);
    }
    if (waitFor(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

int QtDialogs::waitFor(QDialog& dialog) const {
    pump_.throwIfEnded();
    const int result = dialog.exec();
    pump_.throwIfEnded();
    return result;
}

} // namespace tarnwell

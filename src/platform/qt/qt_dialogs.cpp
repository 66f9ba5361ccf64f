#include "platform/qt/qt_dialogs.h"

#include "platform/qt/file_filter.h"
#include "platform/qt/message_text.h"
#include "platform/qt/qt_progress_box.h"
#include "ui/one_line.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QInputDialog>
#include <QOperatingSystemVersion>

namespace tarnwell {

namespace {

/// On Windows, what a minimised window owns is as little to be seen as the window.
bool inSight(const QWidget* window) {
    return window != nullptr && window->isVisible() && !window->isMinimized() &&
           (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
}

/// While the user is at another program no window is active. But a box that belongs to none would open
/// underneath the windows that stay on top, and the program would seem to hang.
QWidget* windowOfTheUser() {
    for (QWidget* const window : {QApplication::activeWindow(), QApplication::activeModalWidget()}) {
        if (inSight(window))
            return window;
    }
    QWidget* result = nullptr;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const bool before = result == nullptr || window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        if (before && inSight(window))
            result = window;
    }
    return result;
}

QMessageBox::Icon toolkitIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Exclamation:
        break;
    }
    return QMessageBox::Warning;
}

QFont toolkitFont(const ui::Font& font) {
    QFont result = QApplication::font();
    if (!font.name.isEmpty())
        result.setFamily(font.name);
    if (font.size > 0)
        result.setPointSizeF(font.size);
    result.setBold(font.bold);
    result.setItalic(font.italic);
    return result;
}

/// "iso" and "*.iso" are the same.
QString suffixOf(const QString& extension) {
    return extension.mid(extension.lastIndexOf(u'.') + 1);
}

/// Folders are a kind of their own, and nothing is filtered out.
const QString kFolders;

/// Windows' own dialogs and the toolkit's take no notice of the case; other desktops' may.
PatternsFit patternsOf(const QFileDialog& dialog) {
    const bool madeByToolkit = dialog.layout() != nullptr;
    return madeByToolkit || QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows
               ? PatternsFit::AnyCase
               : PatternsFit::OwnCase;
}

/// The toolkit puts the suffix behind each name that has none, be it that of a file.
class OpenDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    void accept() override {
        const QString suffix = defaultSuffix();
        setDefaultSuffix({});
        if (!QFileInfo(selectedFiles().value(0)).isFile())
            setDefaultSuffix(suffix);
        QFileDialog::accept();
    }
};

} // namespace

void QtDialogs::message(const QString& text, MessageIcon icon, const QString& title) {
    show(text, toolkitIcon(icon), title, QMessageBox::Ok);
}

bool QtDialogs::question(const QString& text, const QString& title, MessageIcon icon) {
    return show(text, toolkitIcon(icon), title, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
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
    return ui::oneLine(box.textValue());
}

std::optional<QString> QtDialogs::openFile(const OpenFileRequest& request) {
    OpenDialog dialog(windowOfTheUser(), request.title, startFolder(request.folder, request.filter));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // a file that exists is what an open dialog is for
    dialog.setDefaultSuffix(suffixOf(request.extension));
    return chooseFile(dialog, request.filter);
}

std::optional<QString> QtDialogs::saveFile(const SaveFileRequest& request) {
    QFileDialog dialog(windowOfTheUser(), request.title, startFolder(request.folder, request.filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askBeforeOverwriting);
    dialog.setDefaultSuffix(suffixOf(request.extension));
    dialog.selectFile(request.fileName);
    return chooseFile(dialog, request.filter);
}

std::optional<QString> QtDialogs::chooseFolder(const ChooseFolderRequest& request) {
    QFileDialog dialog(windowOfTheUser(), request.title, startFolder(request.folder, kFolders));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chooseFile(dialog, kFolders);
}

std::optional<ui::Font> QtDialogs::chooseFont(const ui::Font& current) {
    QFontDialog dialog(toolkitFont(current), windowOfTheUser());
    if (waitFor(dialog) != QDialog::Accepted)
        return std::nullopt;
    const QFont font = dialog.selectedFont();
    // A font that is measured in pixels has no points of its own.
    const double size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return ui::Font{font.family(), size, font.bold(), font.italic()};
}

std::optional<std::int32_t> QtDialogs::chooseColor(std::int32_t current) {
    QColorDialog dialog(toColor_(current), windowOfTheUser());
    if (waitFor(dialog) != QDialog::Accepted)
        return std::nullopt;
    const QColor color = dialog.selectedColor();
    return color.blue() << 16 | color.green() << 8 | color.red();
}

std::unique_ptr<ProgressBox> QtDialogs::progress(const QString& title, std::function<void()> cancel) {
    return std::make_unique<QtProgressBox>(windowOfTheUser(), title, std::move(cancel));
}

QString QtDialogs::startFolder(const QString& wanted, const QString& filter) const {
    if (!wanted.isEmpty())
        return wanted;
    const QString last = lastFolders_.value(kindOfFile(filter));
    return QDir(last).exists() ? last : QString();
}

std::optional<QString> QtDialogs::chooseFile(QFileDialog& dialog, const QString& filter) {
    if (const QStringList filters = toolkitFilters(filter, patternsOf(dialog)); !filters.isEmpty())
        dialog.setNameFilters(filters);
    if (waitFor(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString picked = dialog.selectedFiles().constFirst();
    const bool folder = dialog.fileMode() == QFileDialog::Directory;
    lastFolders_[kindOfFile(filter)] = folder ? picked : QFileInfo(picked).path();
    return QDir::toNativeSeparators(picked);
}

int QtDialogs::waitFor(QDialog& dialog) const {
    pump_.throwIfEnded();
    const int result = dialog.exec();
    pump_.throwIfEnded();
    return result;
}

} // namespace tarnwell

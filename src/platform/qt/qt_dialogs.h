#pragma once

#include "platform/qt/qt_event_pump.h"

#include <QColor>
#include <QHash>
#include <QMessageBox>

class QFileDialog;

namespace tarnwell {

/// Boxes of the desktop, in front of the window that the user is at; of all windows if the user is at another
/// program.
class QtDialogs : public Dialogs {
public:
    /// `toColor` tells how the windows show a colour of the model.
    QtDialogs(const QtEventPump& pump, std::function<QColor(std::int32_t)> toColor)
        : pump_(pump), toColor_(std::move(toColor)) {}

    void message(const QString& text, MessageIcon icon, const QString& title) override;
    bool question(const QString& text, const QString& title, MessageIcon icon) override;
    std::optional<QString> input(const QString& prompt, const QString& title, const QString& text) override;
    std::optional<QString> openFile(const OpenFileRequest& request) override;
    std::optional<QString> saveFile(const SaveFileRequest& request) override;
    std::optional<QString> chooseFolder(const ChooseFolderRequest& request) override;
    std::optional<ui::Font> chooseFont(const ui::Font& current) override;
    std::optional<std::int32_t> chooseColor(std::int32_t current) override;
    std::unique_ptr<ProgressBox> progress(const QString& title, std::function<void()> cancel) override;

private:
    int waitFor(QDialog& dialog) const;
    QMessageBox::StandardButton show(const QString& text, QMessageBox::Icon icon, const QString& title,
                                     QMessageBox::StandardButtons buttons) const;
    QString startFolder(const QString& wanted, const QString& filter) const;
    std::optional<QString> chooseFile(QFileDialog& dialog, const QString& filter);

    const QtEventPump& pump_;
    std::function<QColor(std::int32_t)> toColor_;
    QHash<QString, QString> lastFolders_; ///< by the kind of file
};

} // namespace tarnwell

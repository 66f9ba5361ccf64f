#include "tour/seen_widgets.h"

#include "ui/qt/captions.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>

namespace tarnwell::tour {

QWidget* windowOf(const QString& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == form)
            return window;
    }
    return nullptr;
}

QWidget* windowForKeys() {
    if (QWidget* const box = QApplication::activeModalWidget())
        return box->isActiveWindow() ? box : nullptr;
    QWidget* const active = QApplication::activeWindow();
    if (active && active->isVisible() && active->objectName().startsWith("frm"))
        return active;
    for (const char* form : {"frmSettings", "frmStatus", "frmMain"}) {
        if (QWidget* const window = windowOf(form); window && window->isVisible()) {
            window->activateWindow();
            break;
        }
    }
    return nullptr;
}

QModelIndex rowWith(const QAbstractItemModel& model, const QString& text) {
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.index(row, column).data().toString() == text)
                return model.index(row, 0);
        }
    }
    return {};
}

QString captionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return view::readCaption(button->text());
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? view::readCaption(label->text()) : label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return edit->text();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
        return edit->toPlainText();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return list->currentText();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->title();
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget))
        return bar->text();
    return widget.windowTitle();
}

} // namespace tarnwell::tour

#pragma once

#include <QApplication>
#include <QModelIndex>
#include <QString>
#include <QWidget>

/// What eyes see of the windows. All of it runs on the thread of the windows.
namespace tarnwell::tour {

/// The window of a form that was opened once, or null.
QWidget* windowOf(const QString& form);

/// The dialog of that kind that is up, or null.
template <class Dialog>
Dialog* openDialog() {
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
}

/// The window that a key goes to: the box that is up, else the one with the focus. Without a desktop nobody
/// gives the focus back when a dialog closes, so the latest window takes it. Null for now, perhaps.
QWidget* windowForKeys();

/// The first row that has `text` in one of its columns, or none.
QModelIndex rowWith(const QAbstractItemModel& model, const QString& text);

/// What a control shows: its caption, its text, its chosen entry, the words in its bar.
QString captionOf(const QWidget& widget);

} // namespace tarnwell::tour

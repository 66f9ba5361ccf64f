#include "tour/varying_places.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>

namespace tarnwell::tour {

namespace {

const QStringList kOfRunningWork{"picOverall",        "lblOverallElapsed", "picCurrent",
                                 "lblCurrentElapsed", "lblSpeed",          "lblRemaining"};

bool namesTemporaryFile(const QString& text) {
    return text.contains(QDir::toNativeSeparators(QDir::tempPath()));
}

bool varies(const QWidget& widget) {
    if (kOfRunningWork.contains(widget.objectName()))
        return true;
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget))
        return namesTemporaryFile(edit->text());
    if (const auto* const edit = qobject_cast<const QPlainTextEdit*>(&widget))
        return namesTemporaryFile(edit->toPlainText());
    return false;
}

/// In the list's own coordinates.
QList<QRect> varyingCells(const QTreeView& list) {
    const QPoint corner = list.viewport()->pos();
    const QAbstractItemModel& model = *list.model();
    QList<QRect> cells;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            if (namesTemporaryFile(cell.data().toString()))
                cells += list.visualRect(cell).translated(corner);
        }
    }
    return cells;
}

} // namespace

QList<QRect> varyingPlaces(const QWidget& window) {
    QList<QRect> places;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        const QPoint corner = widget->mapTo(&window, QPoint());
        if (varies(*widget))
            places += QRect(corner, widget->size());
        if (const auto* const list = qobject_cast<const QTreeView*>(widget)) {
            for (const QRect& cell : varyingCells(*list))
                places += cell.translated(corner);
        }
    }
    return places;
}

} // namespace tarnwell::tour

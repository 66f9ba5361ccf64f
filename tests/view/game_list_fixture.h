#pragma once

#include "view/view_fixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

namespace tarnwell::view {

class GameList : public MainWindow {
protected:
    GameList() {
        samples::games(form, 12);
        serveEvents();
    }

    QTreeView& view() { return widget<QTreeView>(form.lstHD); }
    QPoint inRow(int row) { return view().visualRect(view().model()->index(row, 0)).center(); }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, keys, inRow(row));
    }
    QString shown(int row, int column) { return view().model()->index(row, column).data().toString(); }
    std::vector<int> selectedInModel() {
        std::vector<int> rows;
        for (int row = 0; row < form.lstHD.count(); ++row) {
            if (form.lstHD.row(row).selected)
                rows.push_back(row);
        }
        return rows;
    }
    std::vector<int> selectedInView() {
        std::vector<int> rows;
        for (const QModelIndex& index : view().selectionModel()->selectedRows())
            rows.push_back(index.row());
        return rows;
    }
    QStringList shownTitles() {
        QStringList titles;
        for (int row = 0; row < view().model()->rowCount(); ++row)
            titles += shown(row, 0);
        return titles;
    }
    void clickHeading(int column) {
        QHeaderView& header = *view().header();
        const int middle = header.sectionViewportPosition(column) + header.sectionSize(column) / 2;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {middle, header.height() / 2});
        serveEvents();
    }
    QLineEdit* editLabel(int row, const QString& text) {
        view().setCurrentIndex(view().model()->index(row, 0));
        view().edit(view().model()->index(row, 0));
        auto* editor = view().viewport()->findChild<QLineEdit*>();
        if (editor)
            editor->setText(text);
        return editor;
    }
};

} // namespace tarnwell::view

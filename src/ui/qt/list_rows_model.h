#pragma once

#include "ui/list_view.h"

#include <QAbstractTableModel>

namespace tarnwell::view {

/// A list's rows for a Qt view. Appended rows are announced in batches, by `announceAppended`, so that
/// filling a long list costs one update of the view.
class ListRowsModel final : public QAbstractTableModel {
public:
    ListRowsModel(const ui::ListView& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    void announceAppended();
    void announceRemoved(int row);
    void announceCleared();
    void announceChanged(int row);
    void announceColumns();

private:
    const ui::ListView& list_;
    int rows_ = 0; ///< the rows that the view knows of; the list may have more
    int columns_;
};

} // namespace tarnwell::view

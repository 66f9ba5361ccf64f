#pragma once

#include "ui/list_view.h"

#include <QAbstractTableModel>

namespace tarnwell::view {

/// A list's rows for a Qt view, in the list's own order or sorted by a column; the list itself stays as it
/// is. Appended rows are announced in batches, by `announceAppended`, so that filling a long list costs one
/// update of the view.
class ListRowsModel final : public QAbstractTableModel {
public:
    ListRowsModel(const ui::ListView& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Column -1: the list's own order.
    void sort(int column, Qt::SortOrder order) override;

    /// The list's row that is shown at a place of the view, and the place of a row; -1 for none.
    int rowAt(int place) const;
    int placeOf(int row) const;
    int rowAt(const QModelIndex& index) const { return rowAt(index.row()); }

    void announceAppended();
    void announceRemoved(int row);
    void announceCleared();
    void announceChanged(int row);
    void announceColumns();
    /// Whether rows have come or changed since they were last put in order.
    bool needsSorting() const { return needsSorting_; }
    void sortAgain();

private:
    bool sorted() const { return !rowAt_.empty(); }
    void arrange(std::vector<int> order);

    const ui::ListView& list_;
    int rows_ = 0; ///< the rows that the view knows of; the list may have more
    int columns_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    bool needsSorting_ = false;
    std::vector<int> rowAt_, placeOf_; ///< empty in the list's own order
};

} // namespace tarnwell::view

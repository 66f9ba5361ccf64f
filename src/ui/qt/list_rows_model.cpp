#include "ui/qt/list_rows_model.h"

#include "ui/row_order.h"

namespace tarnwell::view {

ListRowsModel::ListRowsModel(const ui::ListView& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(list.count()),
      columns_(static_cast<int>(list.columns.get().size())) {}

int ListRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ListRowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant ListRowsModel::data(const QModelIndex& index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    const int row = rowAt(index);
    if (!isText || row < 0 || row >= list_.count())
        return {};
    return ui::cell(list_.row(row), index.column());
}

QVariant ListRowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto& columns = list_.columns.get();
    const auto at = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || at >= columns.size())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(columns[at].header) : QVariant();
}

Qt::ItemFlags ListRowsModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (list_.editableLabels && index.column() == 0)
        flags |= Qt::ItemIsEditable;
    return flags;
}

void ListRowsModel::sort(int column, Qt::SortOrder order) {
    sortColumn_ = column;
    sortOrder_ = order;
    sortAgain();
}

void ListRowsModel::sortAgain() {
    needsSorting_ = false;
    arrange(sortColumn_ < 0 ? std::vector<int>()
                            : ui::sortedRows(list_, rows_, sortColumn_, sortOrder_ == Qt::DescendingOrder));
}

void ListRowsModel::arrange(std::vector<int> order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& index : before)
        rows.push_back(rowAt(index));
    rowAt_ = std::move(order);
    placeOf_.resize(rowAt_.size());
    for (int place = 0; place < std::ssize(rowAt_); ++place)
        placeOf_[static_cast<std::size_t>(rowAt_[static_cast<std::size_t>(place)])] = place;
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(placeOf(rows[static_cast<std::size_t>(i)]), before[i].column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

int ListRowsModel::rowAt(int place) const {
    if (place < 0 || place >= rows_)
        return -1;
    return sorted() ? rowAt_.at(static_cast<std::size_t>(place)) : place;
}

int ListRowsModel::placeOf(int row) const {
    if (row < 0 || row >= rows_)
        return -1;
    return sorted() ? placeOf_.at(static_cast<std::size_t>(row)) : row;
}

void ListRowsModel::announceAppended() {
    if (list_.count() <= rows_)
        return;
    beginInsertRows({}, rows_, list_.count() - 1);
    for (int row = rows_; sortColumn_ >= 0 && row < list_.count(); ++row) {
        rowAt_.push_back(row);
        placeOf_.push_back(row);
    }
    rows_ = list_.count();
    needsSorting_ = sortColumn_ >= 0;
    endInsertRows();
}

void ListRowsModel::announceRemoved(int row) {
    if (row >= rows_)
        return;
    const int place = placeOf(row);
    beginRemoveRows({}, place, place);
    --rows_;
    if (sorted()) {
        rowAt_.erase(rowAt_.begin() + place);
        placeOf_.erase(placeOf_.begin() + row);
        for (int& other : rowAt_)
            other -= other > row ? 1 : 0;
        for (int& other : placeOf_)
            other -= other > place ? 1 : 0;
    }
    endRemoveRows();
}

void ListRowsModel::announceCleared() {
    beginResetModel();
    rows_ = 0;
    rowAt_.clear();
    placeOf_.clear();
    endResetModel();
}

void ListRowsModel::announceChanged(int row) {
    if (row >= rows_)
        return;
    needsSorting_ = sortColumn_ >= 0;
    const int place = placeOf(row);
    Q_EMIT dataChanged(index(place, 0), index(place, columns_ - 1));
}

void ListRowsModel::announceColumns() {
    const int columns = static_cast<int>(list_.columns.get().size());
    if (columns != columns_) {
        beginResetModel();
        columns_ = columns;
        endResetModel();
    } else if (columns > 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
    }
}

} // namespace tarnwell::view

#include "ui/qt/list_rows_model.h"

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
    if (!isText || !index.isValid() || index.row() >= list_.count())
        return {};
    const ui::ListView::Row& row = list_.row(index.row());
    return index.column() == 0 ? row.text : row.subItems.value(index.column() - 1);
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

void ListRowsModel::announceAppended() {
    if (list_.count() <= rows_)
        return;
    beginInsertRows({}, rows_, list_.count() - 1);
    rows_ = list_.count();
    endInsertRows();
}

void ListRowsModel::announceRemoved(int row) {
    if (row >= rows_)
        return;
    beginRemoveRows({}, row, row);
    --rows_;
    endRemoveRows();
}

void ListRowsModel::announceCleared() {
    beginResetModel();
    rows_ = 0;
    endResetModel();
}

void ListRowsModel::announceChanged(int row) {
    if (row < rows_)
        Q_EMIT dataChanged(index(row, 0), index(row, columns_ - 1));
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

#pragma once

#include "ui/list_view.h"

namespace tarnwell::ui {

/// What a cell counts as when rows are sorted: "4.37GB" by its amount, anything else by its words. Capital
/// letters and accents make no difference, and a number inside a text counts as a number: "Disc 2" comes
/// before "Disc 10".
class SortKey {
public:
    explicit SortKey(const QString& cell);

    friend bool operator<(const SortKey& a, const SortKey& b);

private:
    std::optional<double> amount_; ///< in bytes
    QString words_;
};

/// The cell of a row; empty if the row has fewer columns.
QString cell(const ListView::Row& row, int column);

/// The rows of a list, by their positions, as they follow one another when sorted by a column. Rows whose
/// cells are equal stay in the list's own order, in both directions.
std::vector<int> sortedRows(const ListView& list, int rows, int column, bool descending);

} // namespace tarnwell::ui

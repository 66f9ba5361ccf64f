#pragma once

#include "ui/controls.h"

namespace tarnwell::ui {

/// A table of rows. A row is known by its position, counted from 0 here; the program's own job numbers count
/// from 1.
class ListView : public Control {
public:
    struct Row {
        QString text{};         ///< the first column, the row's label
        QStringList subItems{}; ///< the columns behind it
        QString tag{};          ///< a text that the user does not see
        bool selected = false;
    };

    ListView(Form& form, const QString& name, const Declared& declared = {});

    Property<std::vector<Column>> columns;
    Property<int>
        selectedItem; ///< the row that has the focus, -1 for none; it can be deselected all the same
    const bool multiSelect, editableLabels;

    int count() const { return static_cast<int>(rows_.size()); }
    /// The position must be a row's: 0 to count() - 1.
    const Row& row(int index) const { return rows_.at(static_cast<std::size_t>(index)); }
    /// The first row that is shown as selected, -1 for none. It need not be the one that has the focus.
    int selectedRow() const;

    void append(Row row);
    void remove(int index);
    void clear();
    void setText(int index, const QString& text);
    void setTag(int index, const QString& text);
    /// Selects the row and gives it the focus; unless the list allows several, the others are deselected.
    void select(int index);
    void setSelected(int index, bool selected);

    /// What a view follows. Rows are only ever appended at the end.
    Signal<int> rowAppended, rowRemoved, rowChanged;
    Signal<> cleared, selectionChanged;
    Signal<> clearing; ///< the rows are about to go, all of them

    /// The user has edited the label of `row` to `text`; a handler that sets `cancel` keeps the old label.
    Event<bool& /*cancel*/, int /*row*/, const QString& /*text*/> AfterLabelEdit;
    Event<int /*button: 1 left, 2 right*/> MouseDown;

    void reset() override;

private:
    Row& at(int index) { return rows_.at(static_cast<std::size_t>(index)); }

    std::vector<Row> rows_;
};

} // namespace tarnwell::ui

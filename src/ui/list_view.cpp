#include "ui/list_view.h"

#include <algorithm>

namespace tarnwell::ui {

ListView::ListView(Form& form, const QString& controlName, const Declared& declared)
    : Control(form, Kind::ListView, controlName, declared), columns(*this, declared.columns),
      selectedItem(*this, -1), multiSelect(declared.multiSelect), editableLabels(declared.editableLabels) {}

int ListView::selectedRow() const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [](const Row& row) { return row.selected; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void ListView::append(Row row) {
    rows_.push_back(std::move(row));
    rowAppended.emitNow(count() - 1);
}

void ListView::remove(int index) {
    at(index);
    rows_.erase(rows_.begin() + index);
    if (selectedItem >= count() || selectedItem > index)
        selectedItem = selectedItem - 1;
    rowRemoved.emitNow(index);
}

void ListView::clear() {
    clearing.emitNow();
    rows_.clear();
    selectedItem = -1;
    cleared.emitNow();
}

void ListView::setText(int index, const QString& text) {
    at(index).text = text;
    rowChanged.emitNow(index);
}

void ListView::setTag(int index, const QString& text) {
    at(index).tag = text;
}

void ListView::select(int index) {
    at(index);
    if (!multiSelect) {
        for (Row& row : rows_)
            row.selected = false;
    }
    at(index).selected = true;
    selectedItem = index;
    selectionChanged.emitNow();
}

void ListView::setSelected(int index, bool selected) {
    if (at(index).selected == selected)
        return;
    at(index).selected = selected;
    selectionChanged.emitNow();
}

void ListView::reset() {
    clear();
    Control::reset();
}

} // namespace tarnwell::ui

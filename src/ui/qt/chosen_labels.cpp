#include "ui/qt/chosen_labels.h"

namespace tarnwell::view {

ChosenLabels::ChosenLabels(Binding& binding, ui::ListView& list, QObject& parent)
    : QObject(&parent), list_(list) {
    binding.listen(list.clearing, *this, [this] { remember(); });
}

void ChosenLabels::remember() {
    // A list is emptied twice before it is filled again, the second time with nothing in it.
    if (list_.count() == 0)
        return;
    chosen_.clear();
    focus_.reset();
    for (int row = 0; row < list_.count(); ++row) {
        if (list_.row(row).selected)
            chosen_.insert(labelOf(row));
    }
    const int focused = list_.selectedItem;
    if (focused >= 0 && focused < list_.count() && list_.row(focused).selected)
        focus_ = labelOf(focused);
}

void ChosenLabels::chooseAgain() {
    if (chosen_.empty() || list_.count() == 0)
        return;
    const bool chosenSince = list_.selectedRow() >= 0;
    for (int row = 0; row < list_.count() && !chosenSince; ++row) {
        const auto found = chosen_.find(labelOf(row));
        if (found == chosen_.end())
            continue;
        list_.setSelected(row, true);
        if (focus_ == *found)
            list_.selectedItem = row;
        chosen_.erase(found);
    }
    chosen_.clear();
}

} // namespace tarnwell::view

#pragma once

#include "ui/list_view.h"
#include "ui/qt/binding.h"

#include <set>

namespace tarnwell::view {

/// Remembers which rows were selected when a list is emptied, and selects those that come back: the same
/// label with the same tag, so that a game of the same name on another disk is left alone.
class ChosenLabels final : public QObject {
public:
    ChosenLabels(Binding& binding, ui::ListView& list, QObject& parent);

    /// The list has been filled as far as it was.
    void chooseAgain();

private:
    using Label = std::pair<QString, QString>;
    Label labelOf(int row) const { return {list_.row(row).text, list_.row(row).tag}; }
    void remember();

    ui::ListView& list_;
    std::multiset<Label> chosen_;
    std::optional<Label> focus_;
};

} // namespace tarnwell::view

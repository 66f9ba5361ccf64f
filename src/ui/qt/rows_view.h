#pragma once

#include <QTreeView>

namespace tarnwell::view {

class ListColumns;

/// The rows of a list, or, while there are none, a hint in grey at what fills it. A click on a heading sorts
/// by that column, a second one turns the order round, a third one gives the list's own order back.
///
/// A click on the label of one of several selected rows leaves that one selected, as a click on its other
/// columns does; only a row that was selected alone is edited by a click.
class RowsView final : public QTreeView {
public:
    explicit RowsView(QWidget* parent);

    ListColumns* columns = nullptr; ///< of the list that it is bound to

    void setHint(const QString& hint);
    QString hint() const { return hint_; }

protected:
    using QTreeView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString hint_;
};

} // namespace tarnwell::view

#include "ui/qt/rows_view.h"

#include <QHeaderView>
#include <QPainter>

namespace tarnwell::view {

RowsView::RowsView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollMode(ScrollPerPixel);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicatorShown(true);
}

void RowsView::setHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
}

bool RowsView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool oneOfSeveral = trigger == SelectedClicked && selectionModel()->selectedRows().size() > 1;
    return !oneOfSeveral && QTreeView::edit(index, trigger, event);
}

void RowsView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (hint_.isEmpty() || model()->rowCount() > 0)
        return;
    constexpr int kMargin = 12;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

} // namespace tarnwell::view

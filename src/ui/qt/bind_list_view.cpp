#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/qt/desktop_theme.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/list_rows_model.h"
#include "ui/user_actions.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

namespace tarnwell::view {

namespace {

/// Hands an edited label to the program instead of writing it into the rows. The program's answer may take as
/// long as a run of the tool, so it is asked after the editor has gone.
class LabelDelegate final : public QStyledItemDelegate {
public:
    LabelDelegate(ui::ListView& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

    /// Keeps marks like the plus of the flags on their side of a text where writing runs from right to left.
    QString displayText(const QVariant& value, const QLocale&) const override {
        constexpr char16_t kFirstStrongIsolate = 0x2068;
        const QString text = value.toString();
        return QGuiApplication::isRightToLeft() ? QChar(kFirstStrongIsolate) + text : text;
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int kRoomBetweenRows = 4;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoomBetweenRows);
    }

    /// A text that its column cuts short is told in full by a tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const bool isCut = sizeHint(option, index).width() > view->visualRect(index).width();
        QToolTip::showText(event->globalPos(), isCut ? plainToolTip(index.data().toString()) : QString(),
                           view);
        return true;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        const auto* edit = qobject_cast<QLineEdit*>(editor);
        if (!edit)
            return;
        QMetaObject::invokeMethod(
            parent(),
            [list = &list_, row = QPersistentModelIndex(index), text = edit->text()] {
                if (row.isValid())
                    ui::editLabel(*list, row.row(), text);
            },
            Qt::QueuedConnection);
    }

private:
    ui::ListView& list_;
};

/// A click on the label of one of several selected rows leaves that one selected, as a click on its other
/// columns does; only a row that was selected alone is edited by a click.
class RowsView final : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    using QTreeView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override {
        const bool oneOfSeveral = trigger == SelectedClicked && selectionModel()->selectedRows().size() > 1;
        return !oneOfSeveral && QTreeView::edit(index, trigger, event);
    }
};

/// Keeps a Qt view and a list of the model together. The model's changes reach the view in one go when the
/// program next serves its events.
class ListBinder final : public QObject {
public:
    ListBinder(Binding& binding, ui::ListView& list, QTreeView& view)
        : QObject(&view), binding_(binding), list_(list), view_(view), rows_(new ListRowsModel(list, &view)) {
        view_.setModel(rows_);
        catchUp_.setSingleShot(true);
        catchUp_.callOnTimeout(this, [this] { catchUp(); });
        followRows();
        followSelection();
        followColumns();
        catchUp();
    }

private:
    void followRows() {
        binding_.listen(list_.rowAppended, *this, [this](int) { catchUpSoon(); });
        binding_.listen(list_.rowRemoved, *this, [this](int row) {
            rows_->announceRemoved(row);
            catchUpSoon();
        });
        binding_.listen(list_.rowChanged, *this, [this](int row) { rows_->announceChanged(row); });
        binding_.listen(list_.cleared, *this, [this] { rows_->announceCleared(); });
    }

    void followSelection() {
        const auto soon = [this] { catchUpSoon(); };
        binding_.listen(list_.selectionChanged, *this, soon);
        binding_.listen(list_.selectedItem.changed, *this, soon);
        QItemSelectionModel* selection = view_.selectionModel();
        connect(selection, &QItemSelectionModel::selectionChanged, this,
                [this](const QItemSelection& selected, const QItemSelection& deselected) {
                    if (binding_.showing())
                        return;
                    take(deselected, false);
                    take(selected, true);
                    takeFocus();
                });
        connect(selection, &QItemSelectionModel::currentRowChanged, this, [this] {
            if (!binding_.showing())
                takeFocus();
        });
        // What a user does to the rows is about what they see, and changes what is there.
        catchUpBefore(QEvent::MouseButtonPress, *view_.viewport());
        catchUpBefore(QEvent::KeyPress, view_);
    }

    void catchUpBefore(QEvent::Type input, QWidget& widget) {
        new EventWatcher(widget, [this, input](QEvent& event) {
            if (event.type() == input && catchUp_.isActive())
                catchUp();
            return false;
        });
    }

    void followColumns() {
        const auto show = [this] {
            rows_->announceColumns();
            showColumnWidths();
        };
        binding_.follow(list_.columns.changed, *this, show);
        binding_.listen(list_.font.changed, *this, [this] { showColumnWidths(); });
        binding_.listen(binding_.scaleChanged, *this, [this] { showColumnWidths(); });
        new EventWatcher(view_, [this](QEvent& event) {
            if (event.type() == QEvent::Show)
                showColumnWidths();
            return false;
        });
    }

    /// Every column gets its width, but never cuts its heading; the widest takes what the list has to spare.
    void showColumnWidths() {
        QHeaderView* header = view_.header();
        const auto& columns = list_.columns.get();
        // Headings take long to measure.
        if (columns.empty() || !view_.isVisible())
            return;
        const auto widest = std::max_element(columns.begin(), columns.end(),
                                             [](const auto& a, const auto& b) { return a.width < b.width; });
        for (int i = 0; i < std::ssize(columns); ++i) {
            const ui::Column& column = columns[static_cast<std::size_t>(i)];
            const bool stretches = &column == &*widest && column.width > 0;
            header->setSectionResizeMode(i, stretches ? QHeaderView::Stretch : QHeaderView::Interactive);
            if (column.width > 0 && !stretches)
                header->resizeSection(
                    i, std::max(binding_.scale().pixels(column.width), header->sectionSizeHint(i)));
        }
    }

    void catchUpSoon() {
        if (!catchUp_.isActive())
            catchUp_.start(0);
    }

    void catchUp() {
        catchUp_.stop();
        const Binding::Showing guard(binding_);
        rows_->announceAppended();
        showSelection();
    }

    void showSelection() {
        QItemSelectionModel* selection = view_.selectionModel();
        QItemSelection rows;
        for (int row = 0; row < rows_->rowCount(); ++row) {
            const int first = row;
            while (row < rows_->rowCount() && list_.row(row).selected)
                ++row;
            if (row > first)
                rows.select(rows_->index(first, 0), rows_->index(row - 1, rows_->columnCount() - 1));
        }
        if (selection->selection() != rows)
            selection->select(rows, QItemSelectionModel::ClearAndSelect);
        // A list that gets the focus gives it to its first row by itself.
        const QModelIndex current = rows_->index(list_.selectedItem, 0);
        if (current.isValid() && view_.currentIndex().row() != current.row())
            selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }

    void take(const QItemSelection& ranges, bool selected) {
        // The list tells of each row; these are the view's own news.
        const Binding::Showing guard(binding_);
        for (const QItemSelectionRange& range : ranges) {
            for (int row = range.top(); row <= range.bottom() && row < list_.count(); ++row)
                list_.setSelected(row, selected);
        }
    }

    /// The focus may have come to a row while the view was being told about the model, as when the page with
    /// the list opens; so it is looked at whenever the user selects.
    void takeFocus() { list_.selectedItem = view_.currentIndex().row(); }

    Binding& binding_;
    ui::ListView& list_;
    QTreeView& view_;
    ListRowsModel* rows_;
    QTimer catchUp_;
};

void reportPresses(ui::ListView& list, QTreeView& view) {
    new EventWatcher(*view.viewport(), [&list, &view](QEvent& event) {
        if (event.type() != QEvent::MouseButtonPress)
            return false;
        const auto button = static_cast<QMouseEvent&>(event).button();
        if (button == Qt::LeftButton || button == Qt::RightButton) {
            const int number = button == Qt::LeftButton ? 1 : 2;
            QMetaObject::invokeMethod(
                &view, [&list, number] { ui::pressMouse(list, number); }, Qt::QueuedConnection);
        }
        // The right button is about the row that is selected, and selects none itself.
        return button == Qt::RightButton;
    });
}

} // namespace

QWidget* bindListView(Binding& binding, ui::ListView& list, QWidget* parent) {
    auto* view = new RowsView(parent);
    view->setRootIsDecorated(false);
    view->setItemsExpandable(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->header()->setStretchLastSection(false);
    view->header()->setSectionsMovable(false);
    if (drawnByTheme(*view->header()))
        keepThemeColors(binding, *view->header());
    view->setSelectionMode(list.multiSelect ? QAbstractItemView::ExtendedSelection
                                            : QAbstractItemView::SingleSelection);
    view->setEditTriggers(list.editableLabels
                              ? QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked
                              : QAbstractItemView::NoEditTriggers);
    view->setItemDelegate(new LabelDelegate(list, view));
    new ListBinder(binding, list, *view);
    reportPresses(list, *view);
    return view;
}

} // namespace tarnwell::view

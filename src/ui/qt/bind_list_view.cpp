#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/qt/chosen_labels.h"
#include "ui/qt/desktop_theme.h"
#include "ui/qt/dropped_files.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/list_columns.h"
#include "ui/qt/list_rows_model.h"
#include "ui/qt/rows_view.h"
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

namespace tarnwell::view {

namespace {

const ListRowsModel& rowsOf(const QModelIndex& index) {
    return static_cast<const ListRowsModel&>(*index.model());
}

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

    /// Of a path the middle says least.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool isPath = option->text.contains(u'/') || option->text.contains(u'\\');
        option->textElideMode = isPath ? Qt::ElideMiddle : Qt::ElideRight;
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

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (editor)
            new EventWatcher(*editor, &leavesFilesToWindow);
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        const auto* edit = qobject_cast<QLineEdit*>(editor);
        if (!edit)
            return;
        QMetaObject::invokeMethod(
            parent(),
            [list = &list_, label = QPersistentModelIndex(index), text = edit->text()] {
                if (label.isValid())
                    ui::editLabel(*list, rowsOf(label).rowAt(label), text);
            },
            Qt::QueuedConnection);
    }

private:
    ui::ListView& list_;
};

/// Keeps a Qt view and a list of the model together. The model's changes reach the view in one go when the
/// program next serves its events. What the view tells of its places is about the list's rows.
class ListBinder final : public QObject {
public:
    ListBinder(Binding& binding, ui::ListView& list, RowsView& view)
        : QObject(&view), binding_(binding), list_(list), view_(view), rows_(new ListRowsModel(list, &view)) {
        view_.setModel(rows_);
        catchUp_.setSingleShot(true);
        catchUp_.callOnTimeout(this, [this] { catchUp(); });
        binding_.listen(list_.columns.changed, *this, [this] { rows_->announceColumns(); });
        columns_ = view.columns = new ListColumns(binding, list, view);
        if (list.editableLabels)
            chosen_ = new ChosenLabels(binding, list, *this);
        followRows();
        followSelection();
        followHeadings();
        catchUp();
    }

private:
    void followRows() {
        binding_.listen(list_.rowAppended, *this, [this](int) { catchUpSoon(); });
        binding_.listen(list_.rowRemoved, *this, [this](int row) {
            rows_->announceRemoved(row);
            catchUpSoon();
        });
        binding_.listen(list_.rowChanged, *this, [this](int row) {
            rows_->announceChanged(row);
            catchUpSoon();
        });
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

    void followHeadings() {
        connect(view_.header(), &QHeaderView::sortIndicatorChanged, this,
                [this](int column, Qt::SortOrder order) {
                    catchUp();
                    arrange([&] { rows_->sort(column, order); });
                    view_.scrollTo(view_.currentIndex());
                });
    }

    void catchUpBefore(QEvent::Type input, QWidget& widget) {
        new EventWatcher(widget, [this, input](QEvent& event) {
            if (event.type() == input && catchUp_.isActive())
                catchUp();
            return false;
        });
    }

    void catchUpSoon() {
        if (!catchUp_.isActive())
            catchUp_.start(0);
    }

    void catchUp() {
        catchUp_.stop();
        const Binding::Showing guard(binding_);
        rows_->announceAppended();
        if (chosen_)
            chosen_->chooseAgain();
        if (rows_->needsSorting())
            arrange([this] { rows_->sortAgain(); });
        showSelection();
        columns_->followRows();
    }

    /// Qt would carry each cell of each selected row over by itself, which takes long for many.
    template <class Sort>
    void arrange(Sort sort) {
        const Binding::Showing guard(binding_);
        view_.selectionModel()->clearSelection();
        sort();
        showSelection();
    }

    void showSelection() {
        QItemSelectionModel* selection = view_.selectionModel();
        const auto isSelected = [this](int place) { return list_.row(rows_->rowAt(place)).selected; };
        QItemSelection places;
        for (int place = 0; place < rows_->rowCount(); ++place) {
            const int first = place;
            while (place < rows_->rowCount() && isSelected(place))
                ++place;
            if (place > first)
                places.select(rows_->index(first, 0), rows_->index(place - 1, rows_->columnCount() - 1));
        }
        if (selection->selection() != places)
            selection->select(places, QItemSelectionModel::ClearAndSelect);
        // A list that gets the focus gives it to its first row by itself.
        const QModelIndex current = rows_->index(rows_->placeOf(list_.selectedItem), 0);
        if (current.isValid() && view_.currentIndex().row() != current.row())
            selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }

    void take(const QItemSelection& ranges, bool selected) {
        // The list tells of each row; these are the view's own news.
        const Binding::Showing guard(binding_);
        for (const QItemSelectionRange& range : ranges) {
            for (int place = range.top(); place <= range.bottom() && place < rows_->rowCount(); ++place)
                list_.setSelected(rows_->rowAt(place), selected);
        }
    }

    /// The focus may have come to a row while the view was being told about the model, as when the page with
    /// the list opens; so it is looked at whenever the user selects.
    void takeFocus() { list_.selectedItem = rows_->rowAt(view_.currentIndex()); }

    Binding& binding_;
    ui::ListView& list_;
    RowsView& view_;
    ListRowsModel* rows_;
    ListColumns* columns_;
    ChosenLabels* chosen_ = nullptr;
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

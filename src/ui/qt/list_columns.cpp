#include "ui/qt/list_columns.h"

#include "ui/qt/event_watcher.h"
#include "ui/row_order.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSet>
#include <QStyle>

#include <algorithm>
#include <numeric>

namespace tarnwell::view {

namespace {

int sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

} // namespace

ListColumns::ListColumns(Binding& binding, ui::ListView& list, QTreeView& view)
    : QObject(&view), binding_(binding), list_(list), view_(view) {
    view_.header()->setSectionResizeMode(QHeaderView::Interactive);
    connect(view_.header(), &QHeaderView::sectionResized, this, [this](int column) { takeDragged(column); });
    connect(view_.header(), &QHeaderView::sortIndicatorChanged, this, [this] { fit(); });
    binding_.listen(list_.font.changed, *this, [this] { fit(); });
    binding_.listen(binding_.scaleChanged, *this, [this] { showScale(); });
    const auto fitAt = [this](QWidget& widget, QEvent::Type type) {
        new EventWatcher(widget, [this, type](QEvent& event) {
            if (event.type() == type)
                fit();
            return false;
        });
    };
    fitAt(view_, QEvent::Show);
    fitAt(*view_.viewport(), QEvent::Resize);
}

void ListColumns::keepWhole(int column) {
    whole_ = column;
    followRows();
}

void ListColumns::followRows() {
    if (whole_ < 0)
        return;
    if (const int longest = longestText(); longest != wholeWidth_) {
        wholeWidth_ = longest;
        fit();
    }
}

int ListColumns::longestText() const {
    QSet<QString> texts;
    for (int row = 0; row < list_.count(); ++row)
        texts.insert(ui::cell(list_.row(row), whole_));
    int longest = 0;
    for (const QString& text : texts)
        longest = std::max(longest, view_.fontMetrics().horizontalAdvance(text));
    const int margin = view_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view_) + 1;
    return longest + 2 * margin;
}

/// Only the column that sorts needs room for the mark of it.
int ListColumns::heading(int column) const {
    QHeaderView& header = *view_.header();
    header.setSortIndicatorShown(column == header.sortIndicatorSection());
    const int width = header.sectionSizeHint(column);
    header.setSortIndicatorShown(true);
    return width;
}

int ListColumns::spareColumn() const {
    const auto& columns = list_.columns.get();
    const auto narrower = [](const auto& a, const auto& b) { return a.width < b.width; };
    return static_cast<int>(std::max_element(columns.begin(), columns.end(), narrower) - columns.begin());
}

std::vector<int> ListColumns::declaredWidths() const {
    const auto& columns = list_.columns.get();
    const auto spare = static_cast<std::size_t>(spareColumn());
    std::vector<int> widths(columns.size()), least(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = static_cast<int>(i);
        least[i] = column == whole_ ? std::max(wholeWidth_, heading(column)) : heading(column);
        widths[i] = i == spare ? least[i] : std::max(binding_.scale().pixels(columns[i].width), least[i]);
    }
    const int room = view_.viewport()->width() - sum(widths);
    if (room >= 0) {
        widths[spare] += room;
        return widths;
    }
    int toGive = sum(widths) - sum(least), lack = std::min(-room, toGive);
    for (std::size_t i = 0; i < widths.size() && toGive > 0; ++i) {
        const int gives = widths[i] - least[i];
        const int given = lack * gives / toGive;
        widths[i] -= given;
        toGive -= gives;
        lack -= given;
    }
    return widths;
}

std::vector<int> ListColumns::usersWidths() const {
    std::vector<int> widths = users_->widths;
    const auto spare = static_cast<std::size_t>(spareColumn());
    const int least = std::min(widths[spare], heading(static_cast<int>(spare)));
    widths[spare] = std::max(least, widths[spare] + view_.viewport()->width() - users_->room);
    if (whole_ >= 0 && !wholeDragged_) {
        int& whole = widths[static_cast<std::size_t>(whole_)];
        whole = std::max(whole, wholeWidth_);
    }
    return widths;
}

void ListColumns::fit() {
    const auto& columns = list_.columns.get();
    const bool declared =
        std::any_of(columns.begin(), columns.end(), [](const auto& column) { return column.width > 0; });
    // Headings take long to measure.
    if (fitting_ || !declared || !view_.isVisible() || view_.header()->count() != std::ssize(columns))
        return;
    const QScopedValueRollback guard(fitting_, true);
    if (users_ && users_->widths.size() != columns.size())
        users_.reset();
    const std::vector<int> widths = users_ ? usersWidths() : declaredWidths();
    for (int column = 0; column < std::ssize(widths); ++column)
        view_.header()->resizeSection(column, widths[static_cast<std::size_t>(column)]);
}

void ListColumns::takeDragged(int dragged) {
    if (fitting_ || !view_.isVisible())
        return;
    wholeDragged_ = wholeDragged_ || dragged == whole_;
    Users users{{}, view_.viewport()->width(), binding_.scale().pixelsPerTwip()};
    for (int column = 0; column < view_.header()->count(); ++column)
        users.widths.push_back(view_.header()->sectionSize(column));
    users_ = users;
}

void ListColumns::showScale() {
    const double now = binding_.scale().pixelsPerTwip();
    if (users_) {
        const double times = now / users_->pixelsPerTwip;
        for (int& width : users_->widths)
            width = qRound(width * times);
        users_->room = qRound(users_->room * times);
        users_->pixelsPerTwip = now;
    }
    if (whole_ >= 0)
        wholeWidth_ = longestText();
    fit();
}

} // namespace tarnwell::view

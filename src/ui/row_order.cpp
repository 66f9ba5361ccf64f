#include "ui/row_order.h"

#include <algorithm>
#include <numeric>

namespace tarnwell::ui {

namespace {

constexpr double kKilo = 1024;

std::optional<double> unitFactor(QStringView unit) {
    double factor = 1;
    for (const char* known : {"B", "KB", "MB", "GB", "TB"}) {
        if (unit.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return factor;
        factor *= kKilo;
    }
    return {};
}

std::optional<double> amountIn(QStringView text) {
    const auto isPartOfNumber = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; };
    const auto* const end = std::find_if_not(text.begin(), text.end(), isPartOfNumber);
    const auto factor = unitFactor(text.mid(end - text.begin()).trimmed());
    bool isNumber = false;
    const double number = text.left(end - text.begin()).toDouble(&isNumber);
    return isNumber && factor ? std::optional(number * *factor) : std::nullopt;
}

QString comparable(const QString& text) {
    const QString apart = text.normalized(QString::NormalizationForm_KD);
    QString plain;
    plain.reserve(apart.size());
    for (const QChar c : apart) {
        if (c.category() != QChar::Mark_NonSpacing)
            plain += c.toCaseFolded();
    }
    return plain;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// The digits at the front, without leading zeros; they are taken from the text.
QStringView takeNumber(QStringView& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    QStringView digits = text.left(end - text.begin());
    text = text.mid(digits.size());
    while (digits.startsWith(u'0'))
        digits = digits.mid(1);
    return digits;
}

bool wordsBefore(QStringView a, QStringView b) {
    while (!a.isEmpty() && !b.isEmpty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const QStringView numberA = takeNumber(a), numberB = takeNumber(b);
            if (numberA.size() != numberB.size())
                return numberA.size() < numberB.size();
            if (const int order = numberA.compare(numberB); order != 0)
                return order < 0;
        } else if (a.front() != b.front()) {
            return a.front() < b.front();
        } else {
            a = a.mid(1);
            b = b.mid(1);
        }
    }
    return a.isEmpty() && !b.isEmpty();
}

} // namespace

SortKey::SortKey(const QString& cell) : amount_(amountIn(cell)) {
    if (!amount_)
        words_ = comparable(cell);
}

bool operator<(const SortKey& a, const SortKey& b) {
    if (a.amount_ && b.amount_)
        return *a.amount_ < *b.amount_;
    if (a.amount_ || b.amount_)
        return a.amount_ ? !b.words_.isEmpty() : a.words_.isEmpty();
    return wordsBefore(a.words_, b.words_);
}

QString cell(const ListView::Row& row, int column) {
    return column == 0 ? row.text : row.subItems.value(column - 1);
}

std::vector<int> sortedRows(const ListView& list, int rows, int column, bool descending) {
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row)
        keys.emplace_back(cell(list.row(row), column));
    std::vector<int> order(static_cast<std::size_t>(rows));
    std::iota(order.begin(), order.end(), 0);
    const auto key = [&](int row) -> const SortKey& { return keys[static_cast<std::size_t>(row)]; };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return descending ? key(b) < key(a) : key(a) < key(b); });
    return order;
}

} // namespace tarnwell::ui

#include "support/gtest_qt.h"
#include "ui/form.h"
#include "ui/row_order.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

struct ListForm : Form {
    ListForm() : Form("frmSample", {}) {}
    ListView list{*this, "lstGames"};
};

struct RowOrder : testing::Test {
    QString sorted(const QStringList& cells, bool descending = false) {
        for (const QString& text : cells)
            form.list.append({text, {text}, {}, false});
        QStringList result;
        for (const int row : sortedRows(form.list, form.list.count(), 1, descending))
            result += form.list.row(row).text;
        return result.join('|');
    }
    ListForm form;
};

} // namespace

TEST_F(RowOrder, SizesGoByWhatTheyAmountTo) {
    EXPECT_EQ(sorted({"4.37GB", "10.00GB", "4.4 GB", "700MB", "0.9GB"}), "700MB|0.9GB|4.37GB|4.4 GB|10.00GB");
}

TEST_F(RowOrder, NumbersInATextGoByTheirValue) {
    EXPECT_EQ(sorted({"Disc 10", "Disc 2", "Disc 007", "Disc"}), "Disc|Disc 2|Disc 007|Disc 10");
    form.list.clear();
    EXPECT_EQ(sorted({"192.168.0.10", "192.168.0.9", "1942", "007"}), "007|192.168.0.9|192.168.0.10|1942");
}

TEST_F(RowOrder, CapitalsAndAccentsMakeNoDifference) {
    EXPECT_EQ(sorted({"zebra", "Épée", "apple", "EPEE 2", "Banana"}), "apple|Banana|Épée|EPEE 2|zebra");
}

TEST_F(RowOrder, WhatIsEmptyComesFirst) {
    EXPECT_EQ(sorted({"+1+3", "", "4.37GB", ""}), "||4.37GB|+1+3");
}

TEST_F(RowOrder, EqualCellsStayInTheListsOrderBothWays) {
    for (const char* name : {"first", "second", "third"})
        form.list.append({name, {"DVD"}, {}, false});
    EXPECT_EQ(sortedRows(form.list, 3, 1, false), (std::vector{0, 1, 2}));
    EXPECT_EQ(sortedRows(form.list, 3, 1, true), (std::vector{0, 1, 2}));
}

TEST_F(RowOrder, DescendingTurnsItRound) {
    EXPECT_EQ(sorted({"b", "c", "a"}, true), "c|b|a");
}

TEST_F(RowOrder, ARowWithoutThatColumnCountsAsEmpty) {
    form.list.append({"with", {"x"}, {}, false});
    form.list.append({"without", {}, {}, false});
    EXPECT_EQ(sortedRows(form.list, 2, 1, false), (std::vector{1, 0}));
}

#include "support/gtest_qt.h"
#include "ui/form.h"
#include "ui/list_view.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

struct ListsForm : Form {
    ListsForm() : Form("frmSample", {}) {}
    ListView lstOne{*this, "lstOne"};
    ListView lstMany{*this, "lstMany", {.multiSelect = true}};
};

struct ListViewTest : testing::Test {
    ListViewTest() {
        for (const char* text : {"a", "b", "c"}) {
            form.lstOne.append({.text = text});
            form.lstMany.append({.text = text});
        }
    }
    ListsForm form;
};

} // namespace

TEST_F(ListViewTest, SelectingARowDeselectsTheOthersOfAPlainList) {
    form.lstOne.select(0);
    form.lstOne.select(2);
    EXPECT_FALSE(form.lstOne.row(0).selected);
    EXPECT_TRUE(form.lstOne.row(2).selected);
    EXPECT_EQ(form.lstOne.selectedItem, 2);
}

TEST_F(ListViewTest, SelectingARowKeepsTheOthersOfAMultipleList) {
    form.lstMany.select(0);
    form.lstMany.select(2);
    EXPECT_TRUE(form.lstMany.row(0).selected);
    EXPECT_TRUE(form.lstMany.row(2).selected);
}

TEST_F(ListViewTest, TheSelectedRowIsTheMarkedOneWhereverTheFocusIs) {
    EXPECT_EQ(form.lstOne.selectedRow(), -1);
    form.lstOne.select(1);
    form.lstOne.selectedItem = 2;
    EXPECT_EQ(form.lstOne.selectedRow(), 1);
    form.lstOne.remove(1);
    EXPECT_EQ(form.lstOne.selectedRow(), -1);
}

TEST_F(ListViewTest, TheFocusedRowCanBeDeselected) {
    form.lstMany.select(1);
    form.lstMany.setSelected(1, false);
    EXPECT_EQ(form.lstMany.selectedItem, 1);
    EXPECT_FALSE(form.lstMany.row(1).selected);
}

TEST_F(ListViewTest, RemovingARowMovesTheFocusAlong) {
    form.lstOne.select(2);
    form.lstOne.remove(0);
    EXPECT_EQ(form.lstOne.count(), 2);
    EXPECT_EQ(form.lstOne.selectedItem, 1);
    EXPECT_EQ(form.lstOne.row(1).text, "c");
    form.lstOne.append({.text = "d"});
    form.lstOne.remove(0);
    EXPECT_EQ(form.lstOne.selectedItem, 0) << "though the row behind it would do, too";
}

TEST_F(ListViewTest, RemovingTheLastRowLeavesNoFocus) {
    form.lstOne.select(0);
    while (form.lstOne.count() > 0)
        form.lstOne.remove(0);
    EXPECT_EQ(form.lstOne.selectedItem, -1);
}

TEST_F(ListViewTest, RemovingARowBehindTheFocusLeavesTheFocusAndTheRowsBefore) {
    form.lstOne.select(0);
    form.lstOne.remove(1);
    EXPECT_EQ(form.lstOne.count(), 2);
    EXPECT_EQ(form.lstOne.row(0).text, "a");
    EXPECT_EQ(form.lstOne.row(1).text, "c");
    EXPECT_EQ(form.lstOne.selectedItem, 0);
}

TEST_F(ListViewTest, RemovingTheFocusedRowGivesItsPlaceToTheNext) {
    form.lstOne.select(1);
    form.lstOne.remove(1);
    EXPECT_EQ(form.lstOne.selectedItem, 1);
    EXPECT_EQ(form.lstOne.row(1).text, "c");
}

TEST_F(ListViewTest, ChangesAreTold) {
    std::vector<int> appended, removed, changed;
    int cleared = 0;
    form.lstOne.rowAppended.connect([&](int row) { appended.push_back(row); });
    form.lstOne.rowRemoved.connect([&](int row) { removed.push_back(row); });
    form.lstOne.rowChanged.connect([&](int row) { changed.push_back(row); });
    form.lstOne.cleared.connect([&] { ++cleared; });
    form.lstOne.append({.text = "d"});
    form.lstOne.setText(1, "B");
    form.lstOne.remove(0);
    form.lstOne.clear();
    EXPECT_EQ(appended, std::vector{3});
    EXPECT_EQ(changed, std::vector{1});
    EXPECT_EQ(removed, std::vector{0});
    EXPECT_EQ(cleared, 1);
}

TEST_F(ListViewTest, ARowThatIsNotThereIsRefused) {
    EXPECT_THROW(form.lstOne.row(3), std::out_of_range);
    EXPECT_THROW(form.lstOne.remove(-1), std::out_of_range);
}

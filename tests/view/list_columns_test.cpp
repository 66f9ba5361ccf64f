#include "ui/qt/rows_view.h"
#include "view/game_list_fixture.h"

#include <QStyledItemDelegate>

namespace tarnwell::view {

namespace {

std::vector<int> widthsOf(const QHeaderView& header) {
    std::vector<int> widths(static_cast<std::size_t>(header.count()));
    for (int column = 0; column < header.count(); ++column)
        widths[static_cast<std::size_t>(column)] = header.sectionSize(column);
    return widths;
}

void dragBorder(QHeaderView& header, int column, int by) {
    const QPoint border(header.sectionViewportPosition(column) + header.sectionSize(column) - 1,
                        header.height() / 2);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, border);
    QTest::mouseMove(header.viewport(), border + QPoint(by / 2, 0));
    QTest::mouseMove(header.viewport(), border + QPoint(by, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, border + QPoint(by, 0));
    QApplication::processEvents();
}

} // namespace

class Columns : public GameList {
protected:
    QHeaderView& games() { return *view().header(); }
    QTreeView& jobs() { return widget<QTreeView>(form.lstJob); }
    void openJobs() {
        samples::jobs(form);
        serveEvents();
    }
};

TEST_F(Columns, EveryOneCanBeDraggedTheFirstToo) {
    for (int column = 0; column < games().count(); ++column) {
        const std::vector<int> before = widthsOf(games());
        dragBorder(games(), column, 24);
        const std::vector<int> after = widthsOf(games());
        for (int other = 0; other < games().count(); ++other) {
            const auto at = static_cast<std::size_t>(other);
            EXPECT_EQ(after[at], before[at] + (other == column ? 24 : 0)) << column << " " << other;
        }
    }
}

TEST_F(Columns, WhatTheUserDraggedStaysOverRefreshesAndPages) {
    dragBorder(games(), 0, -30);
    dragBorder(games(), 1, 17);
    const std::vector<int> dragged = widthsOf(games());
    samples::games(form, 12);
    openJobs();
    form.fmJob.visible = false;
    serveEvents();
    EXPECT_EQ(widthsOf(games()), dragged);
}

TEST_F(Columns, ADraggedListGivesWhatTheWindowGainsToItsWidestColumn) {
    dragBorder(games(), 1, 17);
    const std::vector<int> dragged = widthsOf(games());
    window.resize(window.width() + 100, window.height());
    serveEvents();
    EXPECT_EQ(games().sectionSize(0), dragged[0] + 100);
    EXPECT_EQ(games().sectionSize(1), dragged[1]);
    window.resize(window.width() - 100, window.height());
    serveEvents();
    EXPECT_EQ(widthsOf(games()), dragged);
}

TEST_F(Columns, AResultIsSeenWholeAndTheOthersMakeRoom) {
    openJobs();
    const QString result = "Error (Could not connect to PS2, restart tarnd_svr.elf)";
    form.lstJob.setText(1, result);
    serveEvents();
    EXPECT_GE(jobs().header()->sectionSize(0), jobs().fontMetrics().horizontalAdvance(result));
    EXPECT_LE(jobs().header()->length(), jobs().viewport()->width());
    form.lstJob.setText(1, "Complete");
    serveEvents();
    EXPECT_EQ(jobs().header()->sectionSize(1), window.currentScale().pixels(1125));
}

TEST_F(Columns, AResultIsSeenWholeAlsoWhenAnotherColumnWasDragged) {
    openJobs();
    dragBorder(*jobs().header(), 4, 20);
    const int dragged = jobs().header()->sectionSize(4);
    const QString result = "Error (File already exists)";
    form.lstJob.setText(1, result);
    serveEvents();
    EXPECT_GE(jobs().header()->sectionSize(0), jobs().fontMetrics().horizontalAdvance(result));
    EXPECT_EQ(jobs().header()->sectionSize(4), dragged);
}

/// How the list's own delegate cuts the text of a cell.
Qt::TextElideMode cutOf(const QTreeView& list, const QModelIndex& cell) {
    struct Delegate : QStyledItemDelegate {
        using QStyledItemDelegate::initStyleOption;
    };
    QStyleOptionViewItem option;
    const auto& delegate = static_cast<const QStyledItemDelegate&>(*list.itemDelegate());
    (delegate.*(&Delegate::initStyleOption))(&option, cell);
    return option.textElideMode;
}

TEST_F(Columns, APathIsCutInItsMiddleAndOtherTextsAtTheirEnd) {
    openJobs();
    EXPECT_EQ(cutOf(jobs(), jobs().model()->index(0, 2)), Qt::ElideMiddle) << "C:\\Images\\keeper.iso";
    EXPECT_EQ(cutOf(jobs(), jobs().model()->index(0, 4)), Qt::ElideRight) << "The Lighthouse Keeper";
}

class Hints : public MainWindow {
protected:
    QString hintOf(const ui::ListView& list) {
        return static_cast<RowsView&>(widget<QTreeView>(list)).hint();
    }
    QImage picture(const ui::ListView& list) {
        serveEvents();
        return widget<QTreeView>(list).viewport()->grab().toImage();
    }
};

TEST_F(Hints, AnEmptyGameListNamesTheButtonThatFillsIt) {
    EXPECT_EQ(hintOf(form.lstHD), "Press Refresh PS2 to list the games");
    samples::localDisk(form);
    EXPECT_EQ(hintOf(form.lstHD), "There are no games here") << "the disk was read, and holds none";
    form.lblDiskSpace.caption = "(no active device)";
    EXPECT_EQ(hintOf(form.lstHD), "Press Refresh HDD to list the games");
}

TEST_F(Hints, AHintIsPaintedWhileThereAreNoRowsAndIsNoRow) {
    form.fmInstall.visible = false;
    form.fmBrowse.visible = true;
    QTreeView& list = widget<QTreeView>(form.lstHD);
    const QImage hinted = picture(form.lstHD);
    EXPECT_EQ(list.model()->rowCount(), 0);
    form.lstHD.append({"", {}, {}, false});
    const QImage filled = picture(form.lstHD);
    EXPECT_NE(hinted, filled);
    form.lstHD.clear();
    EXPECT_EQ(picture(form.lstHD), hinted);
    static_cast<RowsView&>(list).setHint({});
    EXPECT_EQ(picture(form.lstHD), filled);
}

TEST_F(Hints, EmptyBoxesSayWhatFillsThemAndStayEmpty) {
    EXPECT_EQ(widget<QLineEdit>(form.txtISO).placeholderText(), "Choose one with Browse");
    EXPECT_EQ(widget<QLineEdit>(form.txtGameName).placeholderText(),
              "Press Refresh PS2 to be able to install");
    form.cmdInstall.enabled = true;
    EXPECT_EQ(widget<QLineEdit>(form.txtGameName).placeholderText(), "Comes from the image or disc");
    EXPECT_TRUE(form.txtISO.text.get().isEmpty());
    EXPECT_TRUE(form.txtGameName.text.get().isEmpty());
}

} // namespace tarnwell::view

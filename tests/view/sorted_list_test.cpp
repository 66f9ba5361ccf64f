#include "view/game_list_fixture.h"

#include <QElapsedTimer>

namespace tarnwell::view {

class SortedGames : public GameList {
protected:
    SortedGames() {
        fill();
        serveEvents();
    }

    void fill(const QString& disk = "hdd1:") {
        form.lstHD.clear();
        const QStringList games[] = {{"Disc 10", "SLUS_990.03", "4.37GB", "DVD", ""},
                                     {"disc 2", "SLUS_990.01", "10.00GB", "DVD", "+1"},
                                     {"Apple", "SLUS_990.02", "0.68GB", "CD", ""}};
        for (const QStringList& game : games)
            form.lstHD.append({game[0], game.mid(1), disk, false});
    }
    QStringList titlesInModel() {
        QStringList titles;
        for (int row = 0; row < form.lstHD.count(); ++row)
            titles += form.lstHD.row(row).text;
        return titles;
    }
    enum Column { kTitle, kStartup, kSize };
    const QStringList toolsOrder_{"Disc 10", "disc 2", "Apple"};
};

TEST_F(SortedGames, AClickOnAHeadingSortsWhatIsSeenAndMarksTheHeading) {
    clickHeading(kTitle);
    EXPECT_EQ(shownTitles(), QStringList({"Apple", "disc 2", "Disc 10"}));
    EXPECT_EQ(view().header()->sortIndicatorSection(), kTitle);
    EXPECT_EQ(view().header()->sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeading(kSize);
    EXPECT_EQ(shownTitles(), QStringList({"Apple", "Disc 10", "disc 2"}));
    EXPECT_EQ(view().header()->sortIndicatorSection(), kSize);
}

TEST_F(SortedGames, TheSecondClickTurnsItRoundAndTheThirdGivesTheToolsOrderBack) {
    clickHeading(kTitle);
    clickHeading(kTitle);
    EXPECT_EQ(shownTitles(), QStringList({"Disc 10", "disc 2", "Apple"}));
    EXPECT_EQ(view().header()->sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeading(kSize);
    clickHeading(kSize);
    EXPECT_EQ(shownTitles(), QStringList({"disc 2", "Disc 10", "Apple"}));
    clickHeading(kSize);
    EXPECT_EQ(shownTitles(), toolsOrder_);
    EXPECT_EQ(view().header()->sortIndicatorSection(), -1);
}

TEST_F(SortedGames, TheListItselfStaysAsTheToolToldIt) {
    clickHeading(kTitle);
    EXPECT_EQ(titlesInModel(), toolsOrder_);
}

TEST_F(SortedGames, AClickSelectsTheGameThatIsSeenThere) {
    clickHeading(kTitle);
    clickRow(0);
    EXPECT_EQ(selectedInModel(), std::vector{2});
    EXPECT_EQ(form.lstHD.selectedItem, 2);
    clickRow(1, Qt::ShiftModifier);
    EXPECT_EQ(selectedInModel(), (std::vector{1, 2}));
    clickRow(0, Qt::ControlModifier);
    EXPECT_EQ(selectedInModel(), std::vector{1});
}

TEST_F(SortedGames, KeysGoFromRowToRowAsTheyAreSeen) {
    clickHeading(kTitle);
    clickRow(0);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(selectedInModel(), std::vector{1});
    EXPECT_EQ(form.lstHD.selectedItem, 1);
}

TEST_F(SortedGames, TheSelectionStaysWithItsGames) {
    clickRow(0);
    clickRow(2, Qt::ControlModifier);
    clickHeading(kTitle);
    EXPECT_EQ(selectedInModel(), (std::vector{0, 2}));
    EXPECT_EQ(form.lstHD.selectedItem, 2);
    auto seen = selectedInView();
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(seen, (std::vector{0, 2}));
    EXPECT_EQ(view().currentIndex().row(), 0);
}

TEST_F(SortedGames, AnEditedLabelIsTheGamesThatIsSeenThere) {
    clickHeading(kTitle);
    int edited = -1;
    form.lstHD.AfterLabelEdit = [&](bool&, int row, const QString&) { edited = row; };
    QLineEdit* editor = editLabel(0, "Zebra");
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->text(), "Zebra");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return edited >= 0; }));
    serveEvents();
    EXPECT_EQ(edited, 2);
    EXPECT_EQ(form.lstHD.row(2).text, "Zebra");
    EXPECT_EQ(shownTitles(), QStringList({"disc 2", "Disc 10", "Zebra"}));
}

TEST_F(SortedGames, ChangesRemovalsAndNewRowsFallIntoTheirPlaces) {
    clickHeading(kTitle);
    form.lstHD.setText(1, "Zebra");
    form.lstHD.append({"Marsh Runner", {}, {}, false});
    form.lstHD.remove(0);
    serveEvents();
    EXPECT_EQ(shownTitles(), QStringList({"Apple", "Marsh Runner", "Zebra"}));
    clickRow(1);
    EXPECT_EQ(form.lstHD.row(form.lstHD.selectedItem).text, "Marsh Runner");
    form.lstHD.remove(1);
    serveEvents();
    EXPECT_EQ(shownTitles(), QStringList({"Marsh Runner", "Zebra"}));
}

TEST_F(SortedGames, ARefreshKeepsTheSortingAndTheSelectionByName) {
    clickHeading(kTitle);
    clickRow(0);
    clickRow(2, Qt::ControlModifier);
    fill();
    serveEvents();
    EXPECT_EQ(shownTitles(), QStringList({"Apple", "disc 2", "Disc 10"}));
    EXPECT_EQ(selectedInModel(), (std::vector{0, 2}));
    EXPECT_EQ(form.lstHD.selectedItem, 0);
    EXPECT_EQ(selectedInView().size(), 2U);
}

TEST_F(SortedGames, GamesOfTheSameNamesOnAnotherDiskAreNotSelected) {
    clickRow(0);
    fill("hdd2:");
    serveEvents();
    EXPECT_EQ(selectedInModel(), std::vector<int>());
    fill();
    serveEvents();
    EXPECT_EQ(selectedInModel(), std::vector<int>()) << "the list of the other disk lay between";
}

TEST_F(SortedGames, TenThousandSortAtOnceAllSelected) {
    constexpr int kRows = 10'000, kAtOnceMs = 1000;
    form.lstHD.clear();
    for (int i = 0; i < kRows; ++i)
        form.lstHD.append({QString("Game %1").arg(i * 7919 % kRows), {}, {}, true});
    serveEvents();
    QElapsedTimer clock;
    clock.start();
    clickHeading(kTitle);
    EXPECT_LT(clock.elapsed(), kAtOnceMs);
    EXPECT_EQ(shown(kRows - 1, 0), "Game 9999");
    EXPECT_EQ(selectedInModel().size(), std::size_t{kRows});
}

TEST_F(SortedGames, JobsAreRemovedAndEditedAsTheyAreSeen) {
    samples::jobs(form);
    serveEvents();
    auto& jobs = widget<QTreeView>(form.lstJob);
    QHeaderView& header = *jobs.header();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(0) + 10, header.height() / 2});
    serveEvents();
    EXPECT_EQ(jobs.model()->index(0, 0).data().toString(), "Active");
    QTest::mouseClick(jobs.viewport(), Qt::LeftButton, {},
                      jobs.visualRect(jobs.model()->index(1, 0)).center());
    EXPECT_EQ(form.lstJob.selectedItem, 0);
    EXPECT_EQ(form.lstJob.row(0).text, "Complete");
    EXPECT_TRUE(form.lstJob.row(0).selected);
}

TEST_F(SortedGames, AJobLikeOneThatWasClearedIsNotSelected) {
    samples::jobs(form);
    serveEvents();
    form.lstJob.clear();
    form.lstJob.append({"Active", {}, {}, false});
    serveEvents();
    EXPECT_EQ(form.lstJob.selectedRow(), -1);
}

} // namespace tarnwell::view

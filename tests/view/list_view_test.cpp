#include "view/game_list_fixture.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>

namespace tarnwell::view {

TEST_F(GameList, ShowsTheRowsAsTheyAre) {
    EXPECT_EQ(view().model()->rowCount(), 12);
    EXPECT_EQ(shown(2, 0), "Moonbase <Seven>");
    EXPECT_EQ(shown(2, 1), "SLUS_990.02");
    EXPECT_EQ(view().model()->headerData(0, Qt::Horizontal).toString(), "Game Title");
}

TEST_F(GameList, FollowsChangesRemovalsAndClearing) {
    form.lstHD.setText(0, "Renamed");
    form.lstHD.remove(1);
    EXPECT_EQ(shown(0, 0), "Renamed");
    EXPECT_EQ(shown(1, 0), "Moonbase <Seven>");
    EXPECT_EQ(view().model()->rowCount(), 11);
    form.lstHD.clear();
    EXPECT_EQ(view().model()->rowCount(), 0);
}

TEST_F(GameList, RemovalBetweenTwoAppendsKeepsTheRowsRight) {
    form.lstHD.append({"new", {}, {}, false});
    form.lstHD.remove(0);
    form.lstHD.append({"newest", {}, {}, false});
    form.lstHD.remove(11);
    serveEvents();
    EXPECT_EQ(view().model()->rowCount(), 12);
    EXPECT_EQ(shown(11, 0), "newest");
}

TEST_F(GameList, TenThousandRowsComeQuickly) {
    constexpr int kRows = 10'000;
    int insertions = 0;
    QObject::connect(view().model(), &QAbstractItemModel::rowsInserted, &view(), [&] { ++insertions; });
    QElapsedTimer clock;
    clock.start();
    form.lstHD.clear();
    for (int i = 0; i < kRows; ++i)
        form.lstHD.append({QString::number(i), {"SLUS_990.00", "4.37GB", "DVD", ""}, {}, false});
    serveEvents();
    EXPECT_EQ(view().model()->rowCount(), kRows);
    EXPECT_EQ(insertions, 1);
    EXPECT_LT(clock.elapsed(), 2000);
}

TEST_F(GameList, SelectionOfTheProgramShows) {
    form.lstHD.select(4);
    form.lstHD.setSelected(1, false);
    serveEvents();
    EXPECT_EQ(selectedInView(), std::vector{4});
    EXPECT_EQ(view().currentIndex().row(), 4);
}

TEST_F(GameList, SelectionOfTheUserReachesTheProgram) {
    clickRow(3);
    EXPECT_EQ(selectedInModel(), std::vector{3});
    EXPECT_EQ(form.lstHD.selectedItem, 3);
    clickRow(5, Qt::ControlModifier);
    serveEvents();
    EXPECT_EQ(selectedInModel(), (std::vector{3, 5}));
    EXPECT_EQ(selectedInView(), (std::vector{3, 5}));
    EXPECT_EQ(form.lstHD.selectedItem, 5);
}

TEST_F(GameList, AClickOnTheTitleOfOneOfSeveralGamesSelectsThatOneAndEditsNothing) {
    clickRow(3);
    clickRow(5, Qt::ControlModifier);
    clickRow(7, Qt::ControlModifier);
    clickRow(5);
    EXPECT_EQ(selectedInModel(), std::vector{5});
    EXPECT_EQ(form.lstHD.selectedItem, 5);
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(selectedInView(), std::vector{5});
    EXPECT_FALSE(view().viewport()->findChild<QLineEdit*>());
}

TEST_F(GameList, AClickOnTheTitleOfTheGameThatIsSelectedAloneEditsIt) {
    clickRow(5);
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    clickRow(5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view().viewport()->findChild<QLineEdit*>(); }));
    EXPECT_EQ(selectedInModel(), std::vector{5});
}

TEST_F(GameList, ALoneGameIsSelectedByAClickAfterEachRefresh) {
    for (const char* game : {"Lantern", "Marsh Runner", "Harvest"}) {
        form.lstHD.clear();
        form.lstHD.append({game, {"SLUS_990.71", "4.00GB", "DVD", ""}, {}, false});
        serveEvents();
        EXPECT_EQ(form.lstHD.selectedItem, -1);
        clickRow(0);
        serveEvents();
        EXPECT_EQ(selectedInModel(), std::vector{0});
        EXPECT_EQ(form.lstHD.selectedItem, 0);
        EXPECT_EQ(selectedInView(), std::vector{0});
    }
}

TEST_F(GameList, AcceptedLabelEditRenamesTheRow) {
    int asked = 0;
    form.lstHD.AfterLabelEdit = [&](bool&, int row, const QString& text) {
        ++asked;
        EXPECT_EQ(row, 3);
        EXPECT_EQ(text, "Paper Tigers");
    };
    QLineEdit* editor = editLabel(3, "Paper Tigers");
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.lstHD.row(3).text == "Paper Tigers"; }));
    EXPECT_EQ(shown(3, 0), "Paper Tigers");
    EXPECT_EQ(asked, 1);
}

TEST_F(GameList, RefusedLabelEditKeepsTheOldLabel) {
    int asked = 0;
    form.lstHD.AfterLabelEdit = [&](bool& cancel, int, const QString&) {
        ++asked;
        cancel = true;
    };
    QLineEdit* editor = editLabel(3, "Paper Tigers");
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
    EXPECT_EQ(shown(3, 0), "Paper Dragons");
}

TEST_F(GameList, UntouchedLabelIsAnEditTooUnlessItIsLeftByEscape) {
    int asked = 0;
    form.lstHD.AfterLabelEdit = [&](bool&, int, const QString&) { ++asked; };
    QLineEdit* editor = editLabel(3, "Paper Dragons");
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_Escape);
    serveEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(asked, 0);
    editor = editLabel(3, "Paper Dragons");
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
    serveEvents();
    EXPECT_EQ(asked, 1);
}

TEST_F(GameList, ARightPressIsAboutTheSelectedRowNotTheOneUnderThePointer) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, inRow(2));
    serveEvents();
    int button = 0, rowThen = -1;
    form.lstHD.MouseDown = [&](int pressed) {
        button = pressed;
        rowThen = form.lstHD.selectedItem;
    };
    QTest::mousePress(view().viewport(), Qt::RightButton, {}, inRow(6));
    serveEvents();
    EXPECT_EQ(button, 2);
    EXPECT_EQ(rowThen, 2);
    EXPECT_EQ(view().currentIndex().row(), 2);
}

TEST_F(GameList, ColumnsHaveTheirScaledWidths) {
    const QHeaderView& header = *view().header();
    const TwipScale& scale = window.currentScale();
    EXPECT_GE(header.sectionSize(0), scale.pixels(1400));
    EXPECT_EQ(header.sectionSize(1), scale.pixels(1070));
    EXPECT_EQ(header.sectionSize(2), scale.pixels(720));
    EXPECT_LE(header.length(), view().viewport()->width());
}

/// A job list that has just been opened: the page that hides what had the focus hands it to the list.
class OpenedJobList : public MainWindow {
protected:
    OpenedJobList() {
        window.activateWindow();
        widget<QWidget>(form.optJobQueue).setFocus();
        form.lstJob.append({.text = "Pending", .subItems = {"Install"}});
        serveEvents();
        form.optJobQueue.Click = [this] { form.fmJob.visible = true; };
        form.cmdRemove.enabled = true;
        QTest::mouseClick(&widget<QWidget>(form.optJobQueue), Qt::LeftButton, {}, {8, 8});
        serveEvents();
    }

    QTreeView& view() { return widget<QTreeView>(form.lstJob); }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, keys,
                          view().visualRect(view().model()->index(row, 0)).center());
    }
};

TEST_F(OpenedJobList, AClickOnItsOnlyRowChoosesIt) {
    EXPECT_EQ(form.lstJob.selectedRow(), -1);
    clickRow(0);
    serveEvents();
    EXPECT_TRUE(form.lstJob.row(0).selected);
    EXPECT_EQ(form.lstJob.selectedItem, 0);
    EXPECT_EQ(view().selectionModel()->selectedRows().size(), 1);
}

TEST_F(OpenedJobList, TheKeyboardChoosesItsOnlyRow) {
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Space);
    serveEvents();
    EXPECT_TRUE(form.lstJob.row(0).selected);
    EXPECT_EQ(form.lstJob.selectedItem, 0);
}

TEST_F(OpenedJobList, AfterARemovalNoRowLooksChosenUntilItIsClicked) {
    form.lstJob.append({.text = "Pending", .subItems = {"Delete"}});
    serveEvents();
    clickRow(0);
    form.lstJob.remove(0);
    EXPECT_EQ(form.lstJob.selectedRow(), -1);
    serveEvents();
    EXPECT_TRUE(view().selectionModel()->selectedRows().isEmpty());
    clickRow(0);
    serveEvents();
    EXPECT_EQ(form.lstJob.selectedRow(), 0);
    EXPECT_EQ(view().selectionModel()->selectedRows().size(), 1);
}

TEST_F(OpenedJobList, AClickBeforeTheViewHasCaughtUpIsAboutTheRowsAsTheyAre) {
    form.lstJob.append({.text = "Pending", .subItems = {"Delete"}});
    serveEvents();
    clickRow(0);
    form.lstJob.remove(0);
    clickRow(0);
    serveEvents();
    EXPECT_EQ(form.lstJob.selectedRow(), 0);
    EXPECT_EQ(view().selectionModel()->selectedRows().size(), 1);
}

TEST_F(GameList, JobListAllowsOneSelectedRow) {
    samples::jobs(form);
    serveEvents();
    auto& jobs = widget<QTreeView>(form.lstJob);
    const auto click = [&](int row) {
        QTest::mouseClick(jobs.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          jobs.visualRect(jobs.model()->index(row, 0)).center());
    };
    click(0);
    click(2);
    EXPECT_FALSE(form.lstJob.row(0).selected);
    EXPECT_TRUE(form.lstJob.row(2).selected);
    EXPECT_EQ(form.lstJob.selectedItem, 2);
}

} // namespace tarnwell::view

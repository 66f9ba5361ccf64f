#include "first_paint.h"
#include "games.h"
#include "measurements.h"
#include "tool_under_test.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QHeaderView>
#include <QTreeView>

namespace tarnwell::bench {

void measureSortedList(const FreshProcesses& processes, const Effort& effort, Report& report) {
    std::vector<double> milliseconds;
    for (const double each : processes.child("sorted-list", {QString::number(effort.rounds)}))
        milliseconds.push_back(each / kNanosecondsPerMillisecond);
    report.add({.what = QString("%1 games, from the click on a heading").arg(kGames),
                .measured = median(milliseconds),
                .unit = "ms",
                .atMost = 100});
}

/// Nanoseconds from a sorting to the painted rows, by each of the columns in turn.
void sortedList(int rounds) {
    inProgram([rounds](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        ui::click(tool.shared.frmMain.optBrowse);
        auto& view = *desktop.mainWindow().findChild<QTreeView*>("lstHD");
        showGames(tool, view, gameTable(kGames), kGames);
        std::vector<double> nanoseconds;
        for (int i = 0; i < rounds; ++i) {
            const int column = i % view.model()->columnCount();
            nanoseconds.push_back(nanosecondsOf([&] {
                view.header()->setSortIndicator(column,
                                                i % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
                QApplication::processEvents();
                view.viewport()->repaint();
            }));
        }
        tell(nanoseconds);
    });
}

} // namespace tarnwell::bench

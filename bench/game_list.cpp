#include "first_paint.h"
#include "games.h"
#include "measurements.h"
#include "tool_under_test.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

namespace tarnwell::bench {

namespace {

/// A bare view from rows that are ready to painted rows.
double showRows(QTreeView& view, QStandardItemModel& model, const std::vector<QStringList>& rows) {
    const double begin = now();
    model.removeRows(0, model.rowCount());
    for (const QStringList& row : rows) {
        QList<QStandardItem*> items;
        for (const QString& text : row)
            items.append(new QStandardItem(text));
        model.appendRow(items);
    }
    QApplication::processEvents();
    view.viewport()->repaint();
    return now() - begin;
}

std::vector<QStringList> rowsOf(const ui::ListView& list) {
    std::vector<QStringList> rows;
    rows.reserve(static_cast<std::size_t>(list.count()));
    for (int i = 0; i < list.count(); ++i)
        rows.push_back(QStringList(list.row(i).text) + list.row(i).subItems);
    return rows;
}

} // namespace

void measureGameList(const FreshProcesses& processes, const Effort& effort, Report& report) {
    std::vector<double> program, bare;
    const auto figures = processes.child("game-list", {QString::number(effort.rounds)});
    for (std::size_t i = 0; i + 1 < figures.size(); i += 2) {
        program.push_back(figures[i] / 1e6);
        bare.push_back(figures[i + 1] / 1e6);
    }
    report.add({.what = QString("%1 games, from text to shown rows").arg(kGames),
                .measured = median(program),
                .unit = "ms",
                .against = median(bare),
                .atMost = 1.5});
}

void gameList(int rounds) {
    inProgram([rounds](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        ui::click(tool.shared.frmMain.optBrowse);
        auto& view = *desktop.mainWindow().findChild<QTreeView*>("lstHD");
        const QString table = gameTable(kGames);
        const auto show = [&] { showGames(tool, view, table, kGames); };
        show();
        const std::vector<QStringList> rows = rowsOf(tool.shared.frmMain.lstHD);

        QTreeView bareView;
        QStandardItemModel model(0, 5);
        bareView.setModel(&model);
        bareView.setRootIsDecorated(false);
        bareView.setUniformRowHeights(true);
        bareView.resize(view.size());
        bareView.show();
        showRows(bareView, model, rows);

        std::vector<double> nanoseconds;
        for (int i = 0; i < rounds; ++i) {
            nanoseconds.push_back(nanosecondsOf(show));
            nanoseconds.push_back(showRows(bareView, model, rows));
        }
        tell(nanoseconds);
    });
}

} // namespace tarnwell::bench

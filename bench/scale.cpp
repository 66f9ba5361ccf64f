#include "first_paint.h"
#include "games.h"
#include "measurements.h"
#include "tool_under_test.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QTreeView>

#include <map>

namespace tarnwell::bench {

namespace {

constexpr double kStaysTheSame = 1.25, kPaintsMore = 3;

/// Each size is judged beside the one before.
struct List {
    const char* what;
    std::vector<int> sizes;
    int windowful;  ///< rows that are painted at most; up to there a list of more rows is dearer to paint
    int mostRounds; ///< a display takes its time for each step of each job
};

const List kLists[] = {{"A game in a list of", {100, 1000, 10'000}, 12, 15},
                       {"A job in a list of", {10, 100, 1000}, 12, 5},
                       {"A device in a list of", {5, 50}, 0, 15}};

/// Queued one by one, run one by one, and removed, with a look at the window after each step.
void showJobs(Shared& shared, int jobs) {
    ui::ListView& lstJob = shared.frmMain.lstJob;
    for (int i = 0; i < jobs; ++i) {
        lstJob.append({.text = "Pending", .subItems = {"Backup to PC", "", "", "", "", "", ""}});
        QApplication::processEvents();
    }
    for (int i = 0; i < jobs; ++i) {
        lstJob.select(i);
        lstJob.setText(i, "Active");
        QApplication::processEvents();
    }
    while (lstJob.count() > 0) {
        lstJob.remove(0);
        QApplication::processEvents();
    }
}

void showDevices(ToolUnderTest& tool, int devices) {
    QString text;
    for (int i = 0; i < devices; ++i)
        text += QString("\thdd%1:  114473 MB, formatted Playstation 2 HDD\r\n").arg(i);
    tool.shared.frmMain.cmbHD.clear();
    tool.shared.blnQueryHD = true;
    tool.interpreter.ParseToolOutput(text);
    QApplication::processEvents();
}

} // namespace

void measureScale(const FreshProcesses& processes, const Effort& effort, Report& report) {
    std::vector<double> figures = processes.child("scale", {QString::number(effort.rounds)});
    std::size_t next = 0;
    for (const List& list : kLists) {
        std::vector<double> microseconds;
        for (std::size_t i = 0; i < list.sizes.size() && next < figures.size(); ++i)
            microseconds.push_back(figures[next++] / kNanosecondsPerMicrosecond);
        for (std::size_t i = 1; i < list.sizes.size(); ++i) {
            const bool measured = i < microseconds.size();
            report.add({.what = QString("%1 %2, beside one of %3")
                                    .arg(list.what)
                                    .arg(list.sizes[i])
                                    .arg(list.sizes[i - 1]),
                        .measured = measured ? microseconds[i] : 0,
                        .unit = "us",
                        .against = measured ? microseconds[i - 1] : 0,
                        .atMost = list.sizes[i - 1] < list.windowful ? kPaintsMore : kStaysTheSame});
        }
    }
}

/// Nanoseconds a row, for each list in each of its sizes.
void scale(int rounds) {
    inProgram([rounds](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        auto& view = *desktop.mainWindow().findChild<QTreeView*>("lstHD");
        const std::function<void(int)> show[] = {
            [&](int games) { showGames(tool, view, gameTable(games), games); },
            [&](int jobs) { showJobs(tool.shared, jobs); }, [&](int devices) { showDevices(tool, devices); }};
        std::vector<double> figures;
        for (std::size_t list = 0; list < std::size(kLists); ++list) {
            ui::click(list == 1 ? tool.shared.frmMain.optJobQueue : tool.shared.frmMain.optBrowse);
            std::map<int, std::vector<double>> perRow;
            for (int round = 0; round < std::min(rounds, kLists[list].mostRounds); ++round) {
                for (const int rows : kLists[list].sizes)
                    perRow[rows].push_back(nanosecondsOf([&] { show[list](rows); }) / rows);
            }
            for (const int rows : kLists[list].sizes)
                figures.push_back(median(perRow[rows]));
        }
        tell(figures);
    });
}

} // namespace tarnwell::bench

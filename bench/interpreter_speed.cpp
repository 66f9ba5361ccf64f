#include "first_paint.h"
#include "games.h"
#include "measurements.h"
#include "tool_under_test.h"

#include <QApplication>

namespace tarnwell::bench {

namespace {

constexpr int kProgressLines = 2000;

double linesPerSecond(int lines, double begin) {
    return lines / ((now() - begin) / 1e9);
}

double readProgress(ToolUnderTest& tool) {
    tool.beginJob();
    const double begin = now();
    for (int i = 0; i < kProgressLines; ++i)
        tool.interpreter.ParseToolOutput(
            QString("%1%, %2 min remaining, 3.50 MB/sec\r").arg(i % 100, 3).arg(i % 60));
    const double speed = linesPerSecond(kProgressLines, begin);
    tool.endJob();
    return speed;
}

double readGames(ToolUnderTest& tool, const QString& table) {
    tool.shared.blnReadTOC = true;
    const double begin = now();
    tool.interpreter.ParseToolOutput(table);
    const double speed = linesPerSecond(kGames, begin);
    QApplication::processEvents();
    return speed;
}

} // namespace

void measureInterpreterSpeed(const FreshProcesses& processes, const Effort& effort, Report& report) {
    // 50 lines a second may take 2 percent of a core, and the longest list a tenth of a second.
    constexpr double kProgressAim = 50 / 0.02, kGamesAim = kGames / 0.1;
    std::vector<double> progress, games;
    const auto figures = processes.child("interpreter-speed", {QString::number(effort.rounds)});
    for (std::size_t i = 0; i + 1 < figures.size(); i += 2) {
        progress.push_back(figures[i]);
        games.push_back(figures[i + 1]);
    }
    report.add({.what = "Progress lines, shown in windows",
                .measured = median(progress),
                .unit = "lines/s",
                .atLeast = kProgressAim});
    report.add({.what = "Lines of the game list",
                .measured = median(games),
                .unit = "lines/s",
                .atLeast = kGamesAim});
}

void interpreterSpeed(int rounds) {
    inProgram([rounds](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        const QString table = gameTable(kGames);
        std::vector<double> speeds;
        for (int i = 0; i < rounds; ++i) {
            speeds.push_back(readProgress(tool));
            speeds.push_back(readGames(tool, table));
        }
        tell(speeds);
    });
}

} // namespace tarnwell::bench

#include "measurements.h"
#include "window_starts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tarnwell::bench {

namespace {

/// What `./dev test-windows` leaves behind: the programs, and Wine made ready for them.
const QString kWindowsBuild = QStringLiteral(TARNWELL_SOURCE_FOLDER "/build/windows");

} // namespace

void measureWineStarts(const FreshProcesses& processes, const Effort& effort, Report& report) {
    const QString program = kWindowsBuild + "/bin/tarnwell-gui.exe",
                  bare = kWindowsBuild + "/bin/bench_bare_window.exe", prefix = kWindowsBuild + "/wine";
    Screen screen;
    if (!screen.works() || !QFile::exists(program) || !QFile::exists(bare) || !QFile::exists(prefix))
        return;
    QProcessEnvironment environment = processes.environmentOn(screen.name());
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("WINEPREFIX", prefix);
    environment.insert("WINEDEBUG", "-all");
    environment.insert("WINEDLLOVERRIDES", "mscoree,mshtml=");
    std::vector<StartedProgram> programs{{"wine", {program}, environment},
                                         {"wine", {bare, "--stay"}, environment}};
    startInTurns(programs, effort.peerStarts, screen);
    constexpr double kLongestStart = 1.15;
    report.add(pairedFigure("Start to a window on Wine", "ms", programs[0].milliseconds,
                            programs[1].milliseconds, kLongestStart));
}

} // namespace tarnwell::bench

#include "measurements.h"
#include "window_starts.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace tarnwell::bench {

namespace {

/// Other windows over console programs, as far as this machine has them.
QStringList peers() {
    QStringList found;
    for (const char* name : {"mkvtoolnix-gui", "gsmartcontrol"}) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty())
            found += path;
    }
    return found;
}

} // namespace

void measurePeers(const FreshProcesses& processes, const Effort& effort, Report& report) {
    Screen screen;
    if (!screen.works())
        return;
    const QProcessEnvironment environment = processes.environmentOn(screen.name());
    std::vector<StartedProgram> programs{{processes.program(), {}, environment},
                                         {processes.bareWindowProgram(), {"--stay"}, environment}};
    for (const QString& path : peers())
        programs.push_back({path, {}, environment});
    startInTurns(programs, effort.peerStarts, screen);
    const StartedProgram& own = programs.front();
    for (std::size_t i = 1; i < programs.size(); ++i) {
        const StartedProgram& other = programs[i];
        const bool isPeer = i > 1;
        constexpr double kLongestStart = 1.15, kMostMemory = 1.2;
        report.add(pairedFigure("Start to a window on X, beside " + QFileInfo(other.path).fileName(), "ms",
                                own.milliseconds, other.milliseconds, isPeer ? 1 : kLongestStart));
        report.add(pairedFigure("Memory in use half a second later", "MB", own.megabytes, other.megabytes,
                                isPeer ? 1 : kMostMemory));
    }
}

} // namespace tarnwell::bench

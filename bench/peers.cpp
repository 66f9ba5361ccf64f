#include "first_paint.h"
#include "measurements.h"
#include "screen.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

namespace tarnwell::bench {

namespace {

struct Program {
    QString path;
    QStringList arguments{};
    std::vector<double> milliseconds{}, megabytes{};

    QString name() const { return QFileInfo(path).fileName(); }
};

/// Other windows over console programs, as far as this machine has them.
std::vector<Program> peers() {
    std::vector<Program> found;
    for (const char* name : {"mkvtoolnix-gui", "gsmartcontrol"}) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty())
            found.push_back({path});
    }
    return found;
}

void startOnce(Program& program, const FreshProcesses& processes, Screen& screen) {
    constexpr int kPatienceMs = 20'000, kUntilSettledMs = 500;
    constexpr double kKilobytesPerMegabyte = 1024;
    QProcess process;
    process.setProcessEnvironment(processes.environmentOn(screen.name()));
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    const double begin = now();
    process.start(program.path, program.arguments);
    if (process.waitForStarted() && screen.waitForWindow(kPatienceMs)) {
        program.milliseconds.push_back((now() - begin) / kNanosecondsPerMillisecond);
        QThread::msleep(kUntilSettledMs);
        program.megabytes.push_back(residentKilobytes(process.processId()) / kKilobytesPerMegabyte);
    }
    process.kill();
    process.waitForFinished();
}

} // namespace

void measurePeers(const FreshProcesses& processes, const Effort& effort, Report& report) {
    Screen screen;
    if (!screen.works())
        return;
    std::vector<Program> programs = peers();
    programs.insert(programs.begin(), {{processes.program()}, {processes.bareWindowProgram(), {"--stay"}}});
    for (int i = 0; i <= effort.peerStarts; ++i) {
        for (Program& program : programs)
            startOnce(program, processes, screen);
        // The first round brings files into memory, and gives every program its settings.
        if (i == 0 && effort.peerStarts > 0)
            std::ranges::for_each(programs, [](Program& each) { each = {each.path, each.arguments}; });
    }
    const Program& own = programs.front();
    for (std::size_t i = 1; i < programs.size(); ++i) {
        const Program& other = programs[i];
        const bool isPeer = i > 1;
        constexpr double kLongestStart = 1.15, kMostMemory = 1.2;
        report.add(pairedFigure("Start to a window on X, beside " + other.name(), "ms", own.milliseconds,
                                other.milliseconds, isPeer ? 1 : kLongestStart));
        report.add(pairedFigure("Memory in use half a second later", "MB", own.megabytes, other.megabytes,
                                isPeer ? 1 : kMostMemory));
    }
}

} // namespace tarnwell::bench

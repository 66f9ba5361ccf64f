#include "window_starts.h"

#include "first_paint.h"

#include <QThread>

namespace tarnwell::bench {

namespace {

void startOnce(StartedProgram& program, Screen& screen) {
    constexpr int kPatienceMs = 20'000, kUntilSettledMs = 500;
    constexpr double kKilobytesPerMegabyte = 1024;
    QProcess process;
    process.setProcessEnvironment(program.environment);
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

void startInTurns(std::vector<StartedProgram>& programs, int starts, Screen& screen) {
    for (int i = 0; i <= starts; ++i) {
        for (StartedProgram& program : programs)
            startOnce(program, screen);
        // The first round brings files into memory, and gives every program its settings.
        if (i == 0 && starts > 0) {
            for (StartedProgram& program : programs) {
                program.milliseconds.clear();
                program.megabytes.clear();
            }
        }
    }
}

} // namespace tarnwell::bench

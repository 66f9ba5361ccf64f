#include "app/desktop/desktop_program.h"
#include "first_paint.h"
#include "measurements.h"

#include <QCoreApplication>

namespace tarnwell::bench {

namespace {

struct Starts {
    std::vector<double> milliseconds, megabytes;

    template <class Start>
    void add(Start start) {
        constexpr double kKilobytesPerMegabyte = 1024;
        const double begin = now();
        const std::vector<double> figures = start();
        if (figures.size() != 2)
            return;
        milliseconds.push_back((figures[0] - begin) / kNanosecondsPerMillisecond);
        megabytes.push_back(figures[1] / kKilobytesPerMegabyte);
    }
};

} // namespace

void measureFirstWindow(const FreshProcesses& processes, const Effort& effort, Report& report) {
    const auto startProgram = [&] { return processes.child("first-window"); };
    const auto startBare = [&] { return processes.bareWindow(); };
    // Once beforehand: files come into memory, and the program has settings.
    startProgram();
    startBare();
    Starts program, bare;
    for (int i = 0; i < effort.starts; ++i) {
        program.add(startProgram);
        bare.add(startBare);
    }
    report.add({.what = "Start to the first painted window",
                .measured = median(program.milliseconds),
                .unit = "ms",
                .against = median(bare.milliseconds),
                .atMost = 1.5});
    report.add({.what = "Memory in use by then",
                .measured = median(program.megabytes),
                .unit = "MB",
                .against = median(bare.megabytes),
                .atMost = 1.5});
}

void firstWindow(int) {
    const QString folder = QCoreApplication::applicationDirPath();
    DesktopProgram program{QtSystemFolders(folder, folder)};
    const FirstPaint firstPaint(program.mainWindow());
    program.run();
}

} // namespace tarnwell::bench

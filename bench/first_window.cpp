#include "first_paint.h"
#include "measurements.h"

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
    const auto startProgram = [&] { return processes.firstWindow(); };
    const auto startBare = [&] { return processes.bareWindow(); };
    // Once beforehand: files come into memory, and the program has settings.
    startProgram();
    startBare();
    Starts program, bare;
    for (int i = 0; i < effort.starts; ++i) {
        program.add(startProgram);
        bare.add(startBare);
    }
    constexpr double kLongestStart = 1.4, kMostMemory = 1.2;
    report.add(pairedFigure("Start to the first painted window", "ms", program.milliseconds,
                            bare.milliseconds, kLongestStart));
    report.add(pairedFigure("Memory in use by then", "MB", program.megabytes, bare.megabytes, kMostMemory));
}

} // namespace tarnwell::bench

#include "first_paint.h"
#include "measurements.h"
#include "tool_under_test.h"

#include <sys/resource.h>

namespace tarnwell::bench {

namespace {

constexpr int kLinesPerSecond = 50;

double processorMicroseconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto microseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_usec);
    };
    return microseconds(usage.ru_utime) + microseconds(usage.ru_stime);
}

} // namespace

void measureProgressLoad(const FreshProcesses& processes, const Effort& effort, Report& report) {
    const auto figures = processes.child("progress-load", {QString::number(effort.progressSeconds)});
    const double share = figures.size() == 2 ? figures[0] / figures[1] : 0;
    report.add({.what = QString("Load of a core at %1 progress lines a second").arg(kLinesPerSecond),
                .measured = 100 * share,
                .unit = "%",
                .atMost = 2});
}

void progressLoad(int seconds) {
    inProgram([seconds](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        tool.beginJob();
        tool.shared.ports.pump.pump();
        const double processorBegin = processorMicroseconds(), begin = now();
        const QString output =
            tool.channel.Tarn_Command(QString("progress %1 %2").arg(kLinesPerSecond).arg(seconds));
        const double elapsed = (now() - begin) / kNanosecondsPerMicrosecond;
        tool.endJob();
        if (output.count('%') == qsizetype{kLinesPerSecond} * seconds)
            tell({processorMicroseconds() - processorBegin, elapsed});
    });
}

} // namespace tarnwell::bench

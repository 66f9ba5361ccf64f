#include "first_paint.h"
#include "measurements.h"
#include "tool_under_test.h"

#include <algorithm>

namespace tarnwell::bench {

void measureCommandDelay(const FreshProcesses& processes, const Effort& effort, Report& report) {
    constexpr double kTwoPasses = 60;
    std::vector<double> delays = processes.child("command-delay", {QString::number(effort.commands)});
    for (double& microseconds : delays)
        microseconds /= 1000;
    report.add({.what = "From the tool's exit to the answer: median",
                .measured = median(delays),
                .unit = "ms",
                .atMost = kTwoPasses});
    report.add({.what = QString("... the longest of %1").arg(delays.size()),
                .measured = delays.empty() ? 0 : *std::max_element(delays.begin(), delays.end()),
                .unit = "ms",
                .atMost = kTwoPasses});
}

void commandDelay(int commands) {
    inProgram([commands](DesktopProgram& desktop) {
        ToolUnderTest tool(desktop);
        std::vector<double> microseconds;
        for (int i = 0; i < commands; ++i) {
            // So that the exits fall on every moment of a pass.
            const int lifeMs = 5 + i * 7 % 60;
            const double exit = tool.channel.Tarn_Command(QString("farewell %1").arg(lifeMs)).toDouble();
            microseconds.push_back((now() - exit) / 1000);
        }
        tell(microseconds);
    });
}

} // namespace tarnwell::bench

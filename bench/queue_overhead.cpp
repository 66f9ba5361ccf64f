#include "first_paint.h"
#include "measurements.h"
#include "tool_under_test.h"

#include <QProcess>

#include <algorithm>

namespace tarnwell::bench {

namespace {

constexpr double kTwoPassesMs = 60;
constexpr double kNothingMs = 0.01; ///< what is left if a busy machine has slowed the shell down

QString command(int job) {
    // So that the exits fall on every moment of a pass.
    const int lifeMs = 20 + job * 7 % 60;
    return QString("extract %1").arg(lifeMs);
}

/// Every run of the scripted tool leaves the times of its start and its end in this file beside it.
QString stampFile(const Shared& shared) {
    return shared.config.AppFolder() + "stamps";
}

void runQueue(Shared& shared, int jobs) {
    for (int i = 0; i < jobs; ++i)
        shared.frmMain.lstJob.append(
            {.text = "Pending", .subItems = {"Backup to PC", "", "", "", "", "", ""}, .tag = command(i)});
    shared.frmMain.cmdStart.Click();
}

void runShell(const Shared& shared, int jobs) {
    QString script;
    for (int i = 0; i < jobs; ++i)
        script += '"' + shared.config.ToolPath() + "\" " + command(i) + '\n';
    QProcess shell;
    shell.setStandardOutputFile(QProcess::nullDevice());
    shell.start("/bin/sh", {"-c", script});
    shell.waitForFinished(-1);
}

/// The times between the end of each run and the start of the next.
std::vector<double> takeGaps(const QString& file) {
    QFile stamps(file);
    std::vector<double> gaps;
    if (!stamps.open(QIODevice::ReadOnly))
        return gaps;
    double end = 0;
    for (const QByteArray& line : stamps.readAll().trimmed().split('\n')) {
        const QList<QByteArray> times = line.split(' ');
        if (end > 0)
            gaps.push_back(times.first().toDouble() - end);
        end = times.last().toDouble();
    }
    stamps.remove();
    return gaps;
}

} // namespace

void measureQueueOverhead(const FreshProcesses& processes, const Effort& effort, Report& report) {
    std::vector<double> figures = processes.child("queue-overhead", {QString::number(effort.jobs)});
    for (double& figure : figures)
        figure /= kNanosecondsPerMillisecond;
    const bool measured = figures.size() == static_cast<std::size_t>(effort.jobs) + 1;
    const std::vector<double> gaps(figures.begin() + (measured ? 2 : 0), figures.end());
    report.add({.what = "From a queued job's exit to the next: median",
                .measured = measured ? median(gaps) : 0,
                .unit = "ms",
                .atMost = kTwoPassesMs});
    report.add({.what = QString("... the longest of %1").arg(gaps.size()),
                .measured = measured ? *std::max_element(gaps.begin(), gaps.end()) : 0,
                .unit = "ms",
                .atMost = kTwoPassesMs});
    report.add({.what = QString("What a queue of %1 adds to a shell, per job").arg(effort.jobs),
                .measured = measured ? std::max((figures[0] - figures[1]) / effort.jobs, kNothingMs) : 0,
                .unit = "ms",
                .atMost = kTwoPassesMs});
}

void queueOverhead(int jobs) {
    inProgram([jobs](DesktopProgram& desktop) {
        Shared& shared = desktop.program().shared();
        const double shell = nanosecondsOf([&] { runShell(shared, jobs); });
        takeGaps(stampFile(shared));
        const double queue = nanosecondsOf([&] { runQueue(shared, jobs); });
        std::vector<double> figures{queue, shell};
        const std::vector<double> gaps = takeGaps(stampFile(shared));
        figures.insert(figures.end(), gaps.begin(), gaps.end());
        tell(figures);
    });
}

} // namespace tarnwell::bench

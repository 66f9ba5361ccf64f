#include "first_paint.h"
#include "measurements.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace tarnwell::bench {

namespace {

const QString kWine = QStringLiteral(TARNWELL_SOURCE_FOLDER "/windows/wine.sh");
/// What `./dev test-windows` leaves behind.
const QString kWindowsPrograms = QStringLiteral(TARNWELL_SOURCE_FOLDER "/build/windows/bin/");

const QStringList kPrograms{"bench_first_window.exe", "bench_bare_window.exe"};

/// Until the program tells that its window has been painted: clocks on Wine are its own.
double millisecondsToPaint(const QString& program) {
    constexpr int kLongestStartMs = 60'000;
    QProcess wine;
    const double begin = now();
    wine.start(kWine, {program});
    const bool painted = wine.waitForReadyRead(kLongestStartMs);
    const double taken = (now() - begin) / kNanosecondsPerMillisecond;
    wine.waitForFinished(kLongestStartMs);
    return painted ? taken : 0;
}

} // namespace

void measureWineStarts(const FreshProcesses&, const Effort& effort, Report& report) {
    const auto isThere = [](const QString& program) { return QFile::exists(kWindowsPrograms + program); };
    if (effort.peerStarts == 0 || !std::ranges::all_of(kPrograms, isThere))
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    const auto figures = numbersPrintedBy(kWine,
                                          {"--session", QCoreApplication::applicationFilePath(), "--child",
                                           "wine-starts", QString::number(effort.peerStarts)},
                                          environment);
    const auto middle = figures.begin() + std::ssize(figures) / 2;
    constexpr double kLongestStart = 1.15;
    report.add(pairedFigure("Start to the first painted window on Wine", "ms", {figures.begin(), middle},
                            {middle, figures.end()}, kLongestStart));
}

void wineStarts(int starts) {
    const QTemporaryDir folder;
    for (const QString& program : kPrograms)
        QFile::copy(kWindowsPrograms + program, folder.filePath(program));
    std::vector<double> taken[2];
    for (int i = 0; i <= starts; ++i) {
        for (qsizetype program = 0; program < kPrograms.size(); ++program) {
            const double milliseconds = millisecondsToPaint(folder.filePath(kPrograms[program]));
            // The first round brings files into memory, and gives the program its settings.
            if (i > 0)
                taken[program].push_back(milliseconds);
        }
    }
    taken[0].insert(taken[0].end(), taken[1].begin(), taken[1].end());
    tell(taken[0]);
}

} // namespace tarnwell::bench

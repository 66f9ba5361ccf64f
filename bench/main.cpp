/// tarnwell-bench [--quick]: how the program fares, each figure with its aim beside it. Ends with 1 if a
/// figure could not be measured; an aim that is missed is told, no more, because machines differ.

#include "measurements.h"
#include "platform/network_namespace.h"

#include <QApplication>

#include <cstdio>

namespace tarnwell::bench {
namespace {

constexpr Effort kFull{
    .starts = 21, .progressSeconds = 20, .commands = 200, .rounds = 15, .jobs = 100, .peerStarts = 9};
constexpr Effort kQuick{
    .starts = 1, .progressSeconds = 1, .commands = 5, .rounds = 1, .jobs = 3, .peerStarts = 0};

int runChild(const QStringList& arguments) {
    constexpr struct {
        const char* name;
        void (*run)(int);
    } kChildren[] = {{"progress-load", progressLoad},
                     {"command-delay", commandDelay},
                     {"interpreter-speed", interpreterSpeed},
                     {"game-list", gameList},
                     {"sorted-list", sortedList},
                     {"scale", scale},
                     {"queue-overhead", queueOverhead},
                     {"dropped-images", droppedImages},
                     {"status-pages", statusPages},
                     {"wine-starts", wineStarts}};
    for (const auto& child : kChildren) {
        if (arguments.value(0) == child.name) {
            child.run(arguments.value(1).toInt());
            return 0;
        }
    }
    return 2;
}

int runAll(bool quick) {
    const Effort& effort = quick ? kQuick : kFull;
    std::printf(
        "Every process is a fresh one. Figures are medians; what is compared was run in turns, one and "
        "the other,\n%d starts and %d fillings of the list. Other work on this machine makes the "
        "times longer.\n\n",
        effort.starts, effort.rounds);
    const FreshProcesses processes;
    Report report;
    report.printHeadings();
    for (const auto measure :
         {measureFirstWindow, measurePeers, measureWineStarts, measureProgressLoad, measureCommandDelay,
          measureInterpreterSpeed, measureGameList, measureSortedList, measureScale, measureQueueOverhead,
          measureDroppedImages, measureStatusPages})
        measure(processes, effort, report);
    return report.complete() ? 0 : 1;
}

} // namespace
} // namespace tarnwell::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", TARNWELL_SCREENS);
    const bool isChild = argc > 2 && argv[1] == QByteArray("--child");
    if (isChild) {
        // Where anybody may have port 80, and nobody has it yet.
        if (argv[2] == QByteArray("status-pages"))
            tarnwell::test::enterNetworkNamespace();
        QApplication application(argc, argv);
        return tarnwell::bench::runChild(QApplication::arguments().mid(2));
    }
    const QCoreApplication application(argc, argv);
    return tarnwell::bench::runAll(QCoreApplication::arguments().contains("--quick"));
}

#include "app/desktop/desktop_program.h"
#include "first_paint.h"
#include "measurements.h"

#include <QTcpSocket>

#include <atomic>
#include <thread>

namespace tarnwell::bench {

namespace {

constexpr int kVisitsPerSecond = 10;
constexpr double kNanosecondsPerSecond = 1e9;

bool fetchPage() {
    constexpr int kAnswerMs = 1000;
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, 80);
    if (!socket.waitForConnected(kAnswerMs))
        return false;
    socket.write("GET / HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QByteArray answer;
    while (!answer.endsWith("</html>\r\n") && socket.waitForReadyRead(kAnswerMs))
        answer += socket.readAll();
    return answer.startsWith("HTTP/1.0 200 OK\r\n") && answer.endsWith("</html>\r\n");
}

/// Someone who asks for the page again and again, from a thread as from another machine.
class Visitor {
public:
    explicit Visitor(std::chrono::nanoseconds pause)
        : thread_([this, pause] {
              while (!leaving_) {
                  pages_ += fetchPage();
                  std::this_thread::sleep_for(pause);
              }
          }) {}
    ~Visitor() {
        leaving_ = true;
        thread_.join();
    }
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;

    int pages() const { return pages_; }

private:
    std::atomic<bool> leaving_ = false;
    std::atomic<int> pages_ = 0;
    std::thread thread_;
};

/// When the last run of the scripted tool came to its end.
double endOfTool(const Shared& shared) {
    QFile stamps(shared.config.AppFolder() + "stamps");
    return stamps.open(QIODevice::ReadOnly) ? stamps.readAll().simplified().split(' ').last().toDouble() : 0;
}

/// Runs a queue of one job and returns how long it took until the tool was done. When the program notices
/// that depends on how its passes happen to fall.
double runJob(Shared& shared, bool serve) {
    shared.frmSettings->chkStatusServer.value = serve ? 1 : 0;
    shared.frmMain.lstJob.clear();
    shared.frmMain.lstJob.append(
        {.text = "Pending", .subItems = {"Backup to PC", "", "", "", "", "", ""}, .tag = "extract work"});
    const double begin = now();
    shared.frmMain.cmdStart.Click();
    return endOfTool(shared) - begin;
}

double pagesPerSecond(Shared& shared) {
    const Visitor visitor{std::chrono::nanoseconds(0)};
    const double elapsed = runJob(shared, true);
    return visitor.pages() / (elapsed / kNanosecondsPerSecond);
}

/// 0 if too few of the pages came.
double visitedJob(Shared& shared) {
    const Visitor visitor{std::chrono::nanoseconds(std::chrono::seconds(1)) / kVisitsPerSecond};
    const double elapsed = runJob(shared, true);
    const double expected = elapsed / kNanosecondsPerSecond * kVisitsPerSecond;
    return visitor.pages() >= expected / 2 ? elapsed : 0;
}

} // namespace

void measureStatusPages(const FreshProcesses& processes, const Effort& effort, Report& report) {
    const auto figures = processes.child("status-pages", {QString::number(effort.rounds)});
    const bool measured = figures.size() == 3;
    report.add({.what = "Status pages a second while a job runs",
                .measured = measured ? figures[0] : 0,
                .unit = "pages",
                .atLeast = 100});
    report.add({.what = QString("A job with %1 status pages a second").arg(kVisitsPerSecond),
                .measured = measured ? figures[1] / kNanosecondsPerMillisecond : 0,
                .unit = "ms",
                .against = measured ? figures[2] / kNanosecondsPerMillisecond : 0,
                .atMost = 1.01});
}

void statusPages(int rounds) {
    inProgram([rounds](DesktopProgram& desktop) {
        Shared& shared = desktop.program().shared();
        const double pages = pagesPerSecond(shared);
        std::vector<double> visited, alone;
        for (int i = 0; i < rounds; ++i) {
            alone.push_back(runJob(shared, false));
            visited.push_back(visitedJob(shared));
        }
        tell({pages, median(visited), median(alone)});
    });
}

} // namespace tarnwell::bench

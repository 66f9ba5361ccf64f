#include "platform/system_helpers.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <ctime>

namespace tarnwell::test {

void endByForce(qint64 processId) {
    if (processId > 1)
        ::kill(static_cast<pid_t>(processId), SIGKILL);
}

bool isGone(qint64 processId) {
    return !QFile::exists(QStringLiteral("/proc/%1").arg(processId)); // a zombie is still there
}

int openHandles() {
    return static_cast<int>(
        QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

InterruptIgnored::InterruptIgnored() {
    std::signal(SIGINT, SIG_IGN);
}

InterruptIgnored::~InterruptIgnored() {
    std::signal(SIGINT, SIG_DFL);
}

} // namespace tarnwell::test

#include "platform/posix/posix_processes.h"

#include "platform/native.h"

#include <cerrno>
#include <csignal>
#include <limits>

namespace tarnwell {

namespace {

/// To the system, 0 and negative numbers mean groups of processes, and process 1 is the system's own.
bool namesOneProcess(qint64 processId) {
    return processId > 1 && processId <= std::numeric_limits<pid_t>::max();
}

} // namespace

bool PosixProcesses::requestClose(qint64 processId) {
    return namesOneProcess(processId) && ::kill(static_cast<pid_t>(processId), SIGTERM) == 0;
}

bool PosixProcesses::exists(qint64 processId) const {
    return namesOneProcess(processId) && (::kill(static_cast<pid_t>(processId), 0) == 0 || errno == EPERM);
}

std::unique_ptr<Processes> native::makeProcesses() {
    return std::make_unique<PosixProcesses>();
}

} // namespace tarnwell

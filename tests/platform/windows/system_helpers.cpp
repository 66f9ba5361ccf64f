#include "platform/system_helpers.h"

#include "platform/windows/system.h"

namespace tarnwell::test {

void endByForce(qint64 processId) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(processId));
    TerminateProcess(process, 1);
    CloseHandle(process);
}

bool isGone(qint64 processId) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(processId));
    if (process == nullptr)
        return true;
    const bool ended = WaitForSingleObject(process, 0) == WAIT_OBJECT_0;
    CloseHandle(process);
    return ended;
}

int openHandles() {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return static_cast<int>(count);
}

double processorSeconds() {
    constexpr double kTicksASecond = 1e7;
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart);
    };
    return (ticks(kernel) + ticks(user)) / kTicksASecond;
}

InterruptIgnored::InterruptIgnored() {
    SetConsoleCtrlHandler(nullptr, TRUE);
}

InterruptIgnored::~InterruptIgnored() {
    SetConsoleCtrlHandler(nullptr, FALSE);
}

} // namespace tarnwell::test

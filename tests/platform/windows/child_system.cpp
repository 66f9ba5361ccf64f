#include "platform/child_system.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

// which needs the one above
#include <tlhelp32.h>

namespace child {

namespace {

DWORD parentId() {
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    BOOL found = Process32First(processes, &entry);
    while (found && entry.th32ProcessID != GetCurrentProcessId())
        found = Process32Next(processes, &entry);
    CloseHandle(processes);
    return entry.th32ParentProcessID;
}

} // namespace

void prepare() {
    for (std::FILE* const stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
}

void hang() {
    for (;;)
        Sleep(INFINITE);
}

void crash() {
    TerminateProcess(GetCurrentProcess(), 1);
    hang();
}

bool standsAlone() {
    std::array<DWORD, 2> processes{};
    return GetConsoleProcessList(processes.data(), static_cast<DWORD>(processes.size())) == 1;
}

void waitForParentsEnd() {
    constexpr DWORD kPatienceMs = 10'000;
    const HANDLE parent = OpenProcess(SYNCHRONIZE, FALSE, parentId());
    WaitForSingleObject(parent, kPatienceMs);
    CloseHandle(parent);
}

} // namespace child

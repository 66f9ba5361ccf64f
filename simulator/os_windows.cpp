#include "os.h"

#include <atomic>
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <windows.h>
#include <winioctl.h>

// Names of games may hold "*" and "?": the C runtime must not take arguments for file patterns.
extern "C" {
int _dowildcard = 0; // NOLINT(bugprone-reserved-identifier)
}

namespace simulator::os {

namespace {

std::atomic<bool> interruptCame{false};
constexpr DWORD kTimeToSayGoodbyeMs = 5000;

BOOL WINAPI noteInterrupt(DWORD event) {
    interruptCame = true;
    // After a closed console the system ends the process as soon as this returns.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(kTimeToSayGoodbyeMs);
    return TRUE;
}

} // namespace

void prepareProcess() {
    // A parent that ignores Ctrl+C hands that down; this undoes it.
    SetConsoleCtrlHandler(nullptr, FALSE);
    SetConsoleCtrlHandler(noteInterrupt, TRUE);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

bool interrupted() {
    return interruptCame;
}

void write(Stream stream, std::string_view bytes) {
    const int descriptor = _fileno(stream == Stream::Output ? stdout : stderr);
    while (!bytes.empty()) {
        const int taken = _write(descriptor, bytes.data(), static_cast<unsigned>(bytes.size()));
        if (taken <= 0)
            return;
        bytes.remove_prefix(static_cast<std::size_t>(taken));
    }
}

std::filesystem::path executableFolder(const char*) {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return std::filesystem::path(name).parent_path();
}

std::filesystem::path pathFromText(const std::string& text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
    return wide;
}

std::uint64_t nextData(const std::filesystem::path& path, std::uint64_t offset) {
    std::error_code error;
    const std::uint64_t size = std::filesystem::file_size(path, error);
    if (error || offset >= size)
        return offset;
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return offset;
    FILE_ALLOCATED_RANGE_BUFFER asked{};
    asked.FileOffset.QuadPart = static_cast<LONGLONG>(offset);
    asked.Length.QuadPart = static_cast<LONGLONG>(size - offset);
    FILE_ALLOCATED_RANGE_BUFFER first{};
    DWORD filled = 0;
    const BOOL done = DeviceIoControl(file, FSCTL_QUERY_ALLOCATED_RANGES, &asked, sizeof asked, &first,
                                      sizeof first, &filled, nullptr);
    const bool answered = done || GetLastError() == ERROR_MORE_DATA;
    CloseHandle(file);
    if (!answered)
        return offset;
    return filled == 0 ? size : static_cast<std::uint64_t>(first.FileOffset.QuadPart);
}

void markSparse(const std::filesystem::path& path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    DWORD ignored = 0;
    DeviceIoControl(file, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &ignored, nullptr);
    CloseHandle(file);
}

long processId() {
    return _getpid();
}

} // namespace simulator::os

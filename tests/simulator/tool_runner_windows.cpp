#include "simulator/tool_runner.h"

#include <stdexcept>
#include <thread>
#include <windows.h>

namespace fs = std::filesystem;

namespace {

HANDLE handleOf(std::intptr_t number) {
    return reinterpret_cast<HANDLE>(number); // NOLINT(performance-no-int-to-ptr)
}

/// The tool gets its arguments in the system's 8-bit code page.
std::wstring wide(const std::string& text) {
    std::wstring result(text.size(), L'\0');
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), result.data(),
                                         static_cast<int>(result.size()));
    result.resize(static_cast<std::size_t>(size));
    return result;
}

/// As the C runtime of a program takes it apart again.
std::wstring quoted(const std::wstring& word) {
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : word) {
        if (letter == L'"')
            result.append(backslashes + 1, L'\\');
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        result += letter;
    }
    return result.append(backslashes, L'\\') + L'"';
}

} // namespace

RunningTool::RunningTool(const fs::path& program, const Words& arguments, const fs::path& workingFolder) {
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    if (!CreatePipe(&readEnd, &writeEnd, &inheritable, 0))
        throw std::runtime_error("no pipe");
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = writeEnd;
    std::wstring line = quoted(program.wstring());
    for (const std::string& word : arguments)
        line += L' ' + quoted(wide(word));
    // Whether Ctrl+C is ignored is handed down, and `interrupt` has us ignore it.
    SetConsoleCtrlHandler(nullptr, FALSE);
    PROCESS_INFORMATION process{};
    // A console of its own, as under the program: interrupts go to consoles.
    const BOOL started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                                        nullptr, workingFolder.c_str(), &start, &process);
    CloseHandle(writeEnd);
    pipe_ = reinterpret_cast<std::intptr_t>(readEnd);
    if (started) {
        CloseHandle(process.hThread);
        process_ = reinterpret_cast<std::intptr_t>(process.hProcess);
    }
}

void RunningTool::interrupt() const {
    FreeConsole();
    AttachConsole(GetProcessId(handleOf(process_)));
    SetConsoleCtrlHandler(nullptr, TRUE);
    GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    FreeConsole();
}

void RunningTool::kill() const {
    TerminateProcess(handleOf(process_), 1);
}

void RunningTool::closePipe() {
    if (pipe_ != kNone)
        CloseHandle(handleOf(pipe_));
    pipe_ = kNone;
}

std::optional<std::string> RunningTool::receive(std::chrono::milliseconds patience) {
    const auto giveUp = std::chrono::steady_clock::now() + patience;
    DWORD waiting = 0;
    while (PeekNamedPipe(handleOf(pipe_), nullptr, 0, nullptr, &waiting, nullptr) && waiting == 0) {
        if (std::chrono::steady_clock::now() > giveUp)
            return std::nullopt;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    char buffer[4096];
    DWORD got = 0;
    if (waiting == 0 || !ReadFile(handleOf(pipe_), buffer, sizeof buffer, &got, nullptr))
        return std::string();
    return std::string(buffer, got);
}

bool RunningTool::running() {
    if (process_ != kNone && WaitForSingleObject(handleOf(process_), 0) == WAIT_OBJECT_0) {
        DWORD code = 0;
        GetExitCodeProcess(handleOf(process_), &code);
        exitCode_ = static_cast<int>(code);
        CloseHandle(handleOf(process_));
        process_ = kNone;
    }
    return process_ != kNone;
}

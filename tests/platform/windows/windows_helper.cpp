/// A console program that tells what only a process itself can see, and one with a window.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <windows.h>

namespace {

/// Whether there is a console, and whether anybody sees it.
int tellConsole(const char* path) {
    std::FILE* const file = path != nullptr ? std::fopen(path, "w") : stdout;
    const HWND window = GetConsoleWindow();
    std::fprintf(file, "%s %s", GetConsoleCP() != 0 ? "console" : "none",
                 window != nullptr && IsWindowVisible(window) ? "visible" : "hidden");
    std::fclose(file);
    return 0;
}

int tellHandle(const char* handle) {
    DWORD flags = 0;
    std::puts(GetHandleInformation(reinterpret_cast<HANDLE>(std::strtoull(handle, nullptr, 10)), &flags)
                  ? "open"
                  : "unknown");
    return 0;
}

/// In UTF-8, without a line end.
int tellCommandLine() {
    char bytes[4096];
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, GetCommandLineW(), -1, bytes, sizeof bytes, nullptr, nullptr);
    DWORD written = 0; // not through the C library, which changes line ends
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes, static_cast<DWORD>(size - 1), &written, nullptr);
    return 0;
}

LRESULT CALLBACK endWhenClosed(HWND window, UINT message, WPARAM word, LPARAM data) {
    if (message == WM_CLOSE)
        PostQuitMessage(0);
    return message == WM_CLOSE ? 0 : DefWindowProcW(window, message, word, data);
}

int waitForClose() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = endWhenClosed;
    kind.lpszClassName = L"WindowsHelper";
    RegisterClassW(&kind);
    CreateWindowExW(0, kind.lpszClassName, L"", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                    nullptr);
    std::puts("ready");
    std::fflush(stdout);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    std::puts("closed");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string act = argc > 1 ? argv[1] : "";
    if (act == "console")
        return tellConsole(argv[2]);
    if (act == "command-line")
        return tellCommandLine();
    if (act == "handle")
        return tellHandle(argv[2]);
    if (act == "window")
        return waitForClose();
    return 2;
}

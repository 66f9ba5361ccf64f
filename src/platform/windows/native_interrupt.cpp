#include "platform/native.h"
#include "platform/windows/system.h"

#include <array>

namespace tarnwell {

namespace {

/// A console comes up a moment after its process.
constexpr DWORD kConsoleLimitMs = 500;
constexpr DWORD kConsoleTryMs = 5;
/// By then an interrupt has reached every process of its console.
constexpr DWORD kArrivalLimitMs = 1000;

/// Being attached to another console changes them.
class StandardHandles {
public:
    ~StandardHandles() {
        for (std::size_t i = 0; i < kNames.size(); ++i)
            SetStdHandle(kNames[i], handles_[i]);
    }

private:
    static constexpr std::array<DWORD, 3> kNames{STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    const std::array<HANDLE, 3> handles_{GetStdHandle(kNames[0]), GetStdHandle(kNames[1]),
                                         GetStdHandle(kNames[2])};
};

HANDLE arrived() {
    static const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    return event;
}

BOOL WINAPI swallowInterrupt(DWORD event) {
    if (event != CTRL_C_EVENT)
        return FALSE;
    SetEvent(arrived());
    return TRUE;
}

bool attachToConsoleOf(DWORD processId) {
    for (DWORD waited = 0; !AttachConsole(processId); waited += kConsoleTryMs) {
        const bool gone = GetLastError() == ERROR_INVALID_PARAMETER;
        if (gone || waited >= kConsoleLimitMs)
            return false;
        Sleep(kConsoleTryMs);
    }
    return true;
}

} // namespace

bool native::interruptProcess(qint64 processId) {
    const StandardHandles ours;
    FreeConsole(); // if any: a program of windows has none
    if (!attachToConsoleOf(static_cast<DWORD>(processId)))
        return false;
    // The interrupt goes to all processes of a console, to us, too. Ours has to be swallowed before the
    // console is left, because leaving it takes the handler away, and what comes later would end us.
    SetConsoleCtrlHandler(swallowInterrupt, TRUE);
    ResetEvent(arrived());
    const bool sent = GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    if (sent && WaitForSingleObject(arrived(), kArrivalLimitMs) != WAIT_OBJECT_0)
        SetConsoleCtrlHandler(nullptr, TRUE); // the next start of a process undoes it, see prepareProcess
    FreeConsole();
    return sent;
}

} // namespace tarnwell

#include "platform/native.h"
#include "platform/windows/system.h"

#include <limits>

namespace tarnwell {

namespace {

bool namesOneProcess(qint64 processId) {
    return processId > 0 && processId <= std::numeric_limits<DWORD>::max();
}

struct CloseRequest {
    DWORD processId;
    bool sent = false;
};

BOOL CALLBACK askToClose(HWND window, LPARAM parameter) {
    auto& request = *reinterpret_cast<CloseRequest*>(parameter);
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (processId == request.processId && GetParent(window) == nullptr &&
        PostMessageW(window, WM_CLOSE, 0, 0))
        request.sent = true;
    return TRUE; // to go on with the next window
}

class WindowsProcesses : public Processes {
public:
    bool requestClose(qint64 processId) override {
        if (!namesOneProcess(processId))
            return false;
        CloseRequest request{static_cast<DWORD>(processId)};
        EnumWindows(askToClose, reinterpret_cast<LPARAM>(&request));
        return request.sent;
    }

    bool exists(qint64 processId) const override {
        if (!namesOneProcess(processId))
            return false;
        const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(processId));
        if (process == nullptr)
            return GetLastError() == ERROR_ACCESS_DENIED;
        // A process that has ended is there for as long as somebody holds it.
        const bool runs = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
        CloseHandle(process);
        return runs;
    }
};

} // namespace

std::unique_ptr<Processes> native::makeProcesses() {
    return std::make_unique<WindowsProcesses>();
}

} // namespace tarnwell

#pragma once

#include "platform/ports.h"
#include "platform/windows/system.h"

#include <QAbstractNativeEventFilter>

#include <shobjidl.h>

namespace tarnwell {

/// A window's task button is made anew each time the window is shown, and all of them when the task bar is
/// restarted; the system tells the window, and the button is drawn on again.
class WindowsTaskbarProgress : public TaskbarProgress, private QAbstractNativeEventFilter {
public:
    WindowsTaskbarProgress();
    ~WindowsTaskbarProgress() override;

    void show(int percent) override;
    void clear() override;

private:
    struct Release {
        void operator()(IUnknown* object) const { object->Release(); }
    };

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;
    void connectToTaskbar();
    void drawOnAll() const;
    void drawOn(HWND window) const;

    const UINT buttonMade_ = RegisterWindowMessageW(L"TaskbarButtonCreated");
    std::unique_ptr<ITaskbarList3, Release> taskbar_;
    std::optional<int> percent_;
};

} // namespace tarnwell

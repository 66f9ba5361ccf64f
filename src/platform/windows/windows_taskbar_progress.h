#pragma once

#include "platform/ports.h"
#include "platform/windows/system.h"

#include <QAbstractNativeEventFilter>

namespace tarnwell {

/// Draws on the task buttons of all windows that are shown. A window gets a new button each time it is shown,
/// and all of them do when the task bar is restarted; the system tells the window, and the button is drawn
/// on.
class WindowsTaskbarProgress : public TaskbarProgress, private QAbstractNativeEventFilter {
public:
    /// Draws a percentage on the button of a window, or takes it off.
    using Draw = std::function<void(HWND window, std::optional<int> percent)>;
    static void drawOnButton(HWND window, std::optional<int> percent);

    explicit WindowsTaskbarProgress(Draw draw = drawOnButton);
    ~WindowsTaskbarProgress() override;

    void show(int percent) override { change(percent); }
    void clear() override { change(std::nullopt); }

private:
    void change(std::optional<int> percent);
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

    const UINT buttonMade_ = RegisterWindowMessageW(L"TaskbarButtonCreated");
    const Draw draw_;
    std::optional<int> percent_;
};

} // namespace tarnwell

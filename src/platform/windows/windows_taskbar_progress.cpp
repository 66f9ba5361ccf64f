#include "platform/windows/windows_taskbar_progress.h"

#include "platform/native.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

#include <shobjidl.h>

namespace tarnwell {

WindowsTaskbarProgress::WindowsTaskbarProgress(Draw draw) : draw_(std::move(draw)) {
    // A program with more rights than the task bar would not be told.
    ChangeWindowMessageFilter(buttonMade_, MSGFLT_ADD);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

WindowsTaskbarProgress::~WindowsTaskbarProgress() {
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

void WindowsTaskbarProgress::change(std::optional<int> percent) {
    if (percent_ == percent)
        return;
    percent_ = percent;
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        // Dialogs and menus have no button.
        if (window->isVisible() && window->transientParent() == nullptr)
            draw_(reinterpret_cast<HWND>(window->winId()), percent_);
    }
}

bool WindowsTaskbarProgress::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const MSG*>(message);
    if (event.message == buttonMade_ && percent_)
        draw_(event.hwnd, percent_);
    return false;
}

void WindowsTaskbarProgress::drawOnButton(HWND window, std::optional<int> percent) {
    constexpr ULONGLONG kWhole = 100;
    // Made each time, since the task bar may be another one by now.
    ITaskbarList3* taskbar = nullptr;
    if (FAILED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                                reinterpret_cast<void**>(&taskbar))))
        return;
    if (SUCCEEDED(taskbar->HrInit())) {
        if (percent)
            taskbar->SetProgressValue(window, static_cast<ULONGLONG>(*percent), kWhole);
        else
            taskbar->SetProgressState(window, TBPF_NOPROGRESS);
    }
    taskbar->Release();
}

std::unique_ptr<TaskbarProgress> native::makeTaskbarProgress() {
    return std::make_unique<WindowsTaskbarProgress>();
}

} // namespace tarnwell

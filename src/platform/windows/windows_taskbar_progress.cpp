#include "platform/windows/windows_taskbar_progress.h"

#include "platform/native.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

namespace tarnwell {

WindowsTaskbarProgress::WindowsTaskbarProgress() {
    // A program that runs with more rights than the task bar would not be told.
    ChangeWindowMessageFilter(buttonMade_, MSGFLT_ADD);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

WindowsTaskbarProgress::~WindowsTaskbarProgress() {
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

void WindowsTaskbarProgress::show(int percent) {
    percent_ = percent;
    if (!taskbar_)
        connectToTaskbar();
    drawOnAll();
}

void WindowsTaskbarProgress::clear() {
    percent_.reset();
    drawOnAll();
}

bool WindowsTaskbarProgress::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const MSG*>(message);
    if (event.message == buttonMade_ && percent_) {
        connectToTaskbar(); // which may be a new one
        drawOn(event.hwnd);
    }
    return false;
}

void WindowsTaskbarProgress::connectToTaskbar() {
    ITaskbarList3* taskbar = nullptr;
    if (SUCCEEDED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                                   reinterpret_cast<void**>(&taskbar))))
        taskbar_.reset(taskbar);
    if (taskbar_ && FAILED(taskbar_->HrInit()))
        taskbar_.reset();
}

void WindowsTaskbarProgress::drawOnAll() const {
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        // The others have no button, and asking for their id would make a window of them.
        if (window->isVisible() && window->handle() != nullptr && window->transientParent() == nullptr)
            drawOn(reinterpret_cast<HWND>(window->winId()));
    }
}

void WindowsTaskbarProgress::drawOn(HWND window) const {
    constexpr ULONGLONG kWhole = 100;
    if (!taskbar_)
        return;
    if (percent_)
        taskbar_->SetProgressValue(window, static_cast<ULONGLONG>(*percent_), kWhole);
    else
        taskbar_->SetProgressState(window, TBPF_NOPROGRESS);
}

std::unique_ptr<TaskbarProgress> native::makeTaskbarProgress() {
    return std::make_unique<WindowsTaskbarProgress>();
}

} // namespace tarnwell

#include "platform/windows/windows_session.h"

#include "platform/native.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace tarnwell {

namespace {

HWND someWindow() {
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->handle() && window->transientParent() == nullptr)
            return reinterpret_cast<HWND>(window->winId());
    }
    return nullptr;
}

} // namespace

WindowsSession::WindowsSession(Explain explain) : explain_(std::move(explain)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

WindowsSession::~WindowsSession() {
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

void WindowsSession::holdUp(const QString& reason) {
    if (window_)
        return;
    window_ = someWindow();
    if (window_)
        explain_(window_, wide(reason));
}

void WindowsSession::release() {
    if (window_)
        explain_(std::exchange(window_, nullptr), nullptr);
}

bool WindowsSession::nativeEventFilter(const QByteArray&, void* message, qintptr* result) {
    const auto& event = *static_cast<const MSG*>(message);
    if (event.message == WM_QUERYENDSESSION && window_) {
        *result = FALSE;
        return true;
    }
    if (event.message == WM_ENDSESSION && event.wParam && ending)
        ending();
    return false;
}

void WindowsSession::explainToSystem(HWND window, const wchar_t* reason) {
    if (reason)
        ShutdownBlockReasonCreate(window, reason);
    else
        ShutdownBlockReasonDestroy(window);
}

std::unique_ptr<DesktopSession> native::makeDesktopSession() {
    return std::make_unique<WindowsSession>();
}

} // namespace tarnwell

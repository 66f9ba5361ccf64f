#pragma once

#include "platform/ports.h"
#include "platform/windows/system.h"

#include <QAbstractNativeEventFilter>

namespace tarnwell {

/// The system shows its user the reason, beside the name of the program, and asks whether to end it anyway.
class WindowsSession : public DesktopSession, public QAbstractNativeEventFilter {
public:
    /// Ties a reason to a window, or takes it off again if it is null.
    using Explain = std::function<void(HWND window, const wchar_t* reason)>;

    explicit WindowsSession(Explain explain = explainToSystem);
    ~WindowsSession() override;

    void holdUp(const QString& reason) override;
    void release() override;

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    static void explainToSystem(HWND window, const wchar_t* reason);

    Explain explain_;
    HWND window_ = nullptr; ///< the one that carries the reason; null while nothing is held up
};

} // namespace tarnwell

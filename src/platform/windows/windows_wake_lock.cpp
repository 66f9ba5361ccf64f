#include "platform/native.h"
#include "platform/windows/system.h"

namespace tarnwell {

namespace {

/// A power request, which the system lists with its reason.
class WindowsWakeLock final : public WakeLock {
public:
    ~WindowsWakeLock() override { release(); }

    void hold(const QString& reason) override {
        if (request_ != INVALID_HANDLE_VALUE)
            return;
        std::wstring text = reason.toStdWString();
        REASON_CONTEXT context{};
        context.Version = POWER_REQUEST_CONTEXT_VERSION;
        context.Flags = POWER_REQUEST_CONTEXT_SIMPLE_STRING;
        context.Reason.SimpleReasonString = text.data();
        request_ = PowerCreateRequest(&context);
        if (request_ != INVALID_HANDLE_VALUE)
            PowerSetRequest(request_, PowerRequestSystemRequired);
    }

    void release() override {
        if (request_ == INVALID_HANDLE_VALUE)
            return;
        PowerClearRequest(request_, PowerRequestSystemRequired);
        CloseHandle(request_);
        request_ = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE request_ = INVALID_HANDLE_VALUE;
};

} // namespace

std::unique_ptr<WakeLock> native::makeWakeLock() {
    return std::make_unique<WindowsWakeLock>();
}

} // namespace tarnwell

#include "platform/native.h"
#include "platform/posix/inhibitor_lock.h"

namespace tarnwell {

namespace {

class PosixWakeLock : public WakeLock {
public:
    void hold(const QString& reason) override { lock_.hold(reason); }
    void release() override { lock_.release(); }

private:
    InhibitorLock lock_{"idle", "block"};
};

} // namespace

std::unique_ptr<WakeLock> native::makeWakeLock() {
    return std::make_unique<PosixWakeLock>();
}

} // namespace tarnwell

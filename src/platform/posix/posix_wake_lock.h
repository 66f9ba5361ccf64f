#pragma once

#include "platform/ports.h"

#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace tarnwell {

/// An inhibitor lock of the login manager, as far as one runs. It is asked for without a wait.
class PosixWakeLock : public WakeLock {
public:
    void hold(const QString& reason) override;
    void release() override;

private:
    std::unique_ptr<QObject> request_; ///< alive while an answer is waited for or a lock is held
    QDBusUnixFileDescriptor lock_;     ///< open for as long as the lock is held
};

} // namespace tarnwell

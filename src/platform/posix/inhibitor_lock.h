#pragma once

#include <QDBusUnixFileDescriptor>
#include <QObject>

#include <memory>

namespace tarnwell {

/// A lock of the login manager, as far as one runs, against something that it would do. It is asked for
/// without a wait, and goes with this object at the latest.
class InhibitorLock {
public:
    /// `what` the login manager is not to do, and how: "block" keeps it from it, "delay" for some seconds
    /// only.
    InhibitorLock(QString what, QString mode) : what_(std::move(what)), mode_(std::move(mode)) {}

    /// Does nothing while it is held, or asked for, already.
    void hold(const QString& reason);
    void release();

private:
    QString what_, mode_;
    std::unique_ptr<QObject> request_; ///< alive while an answer is waited for or the lock is held
    QDBusUnixFileDescriptor lock_;     ///< open for as long as the lock is held
};

} // namespace tarnwell

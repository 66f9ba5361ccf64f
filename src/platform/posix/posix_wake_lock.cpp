#include "platform/posix/posix_wake_lock.h"

#include "platform/native.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tarnwell {

std::unique_ptr<WakeLock> native::makeWakeLock() {
    return std::make_unique<PosixWakeLock>();
}

void PosixWakeLock::hold(const QString& reason) {
    if (request_)
        return;
    QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                                       "org.freedesktop.login1.Manager", "Inhibit");
    call.setArguments({"idle", "Tarnwell GUI", reason, "block"});
    auto watcher = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(call));
    QObject::connect(watcher.get(), &QDBusPendingCallWatcher::finished, watcher.get(),
                     [this](QDBusPendingCallWatcher* answer) {
                         const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
                         if (reply.isValid())
                             lock_ = reply.value();
                     });
    request_ = std::move(watcher);
}

void PosixWakeLock::release() {
    request_.reset();
    lock_ = QDBusUnixFileDescriptor();
}

} // namespace tarnwell

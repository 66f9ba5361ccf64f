#include "platform/posix/inhibitor_lock.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tarnwell {

void InhibitorLock::hold(const QString& reason) {
    if (request_)
        return;
    QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                                       "org.freedesktop.login1.Manager", "Inhibit");
    call.setArguments({what_, "Tarnwell GUI", reason, mode_});
    auto watcher = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(call));
    QObject::connect(watcher.get(), &QDBusPendingCallWatcher::finished, watcher.get(),
                     [this](QDBusPendingCallWatcher* answer) {
                         const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
                         if (reply.isValid())
                             lock_ = reply.value();
                     });
    request_ = std::move(watcher);
}

void InhibitorLock::release() {
    request_.reset();
    lock_ = QDBusUnixFileDescriptor();
}

} // namespace tarnwell

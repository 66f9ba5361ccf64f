#include "platform/native.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tarnwell {

bool native::showNotification(const QString& title, const QString& text) {
    constexpr int kAsLongAsUsual = -1;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusMessage call =
        QDBusMessage::createMethodCall("org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                       "org.freedesktop.Notifications", "Notify");
    const quint32 replaces = 0;
    call.setArguments({"Tarnwell GUI", replaces, "dialog-information", title, text, QStringList(),
                       QVariantMap(), kAsLongAsUsual});
    return bus.send(call);
}

} // namespace tarnwell

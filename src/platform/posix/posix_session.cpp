#include "platform/posix/posix_session.h"

#include "platform/native.h"

#include <QDBusConnection>
#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace tarnwell {

PosixSession::PosixSession() : signals_([this] { end(); }) {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &PosixSession::refuse, Qt::DirectConnection);
    qGuiApp->installEventFilter(this);
}

void PosixSession::holdUp(const QString& reason) {
    if (!reason_.isEmpty())
        return;
    reason_ = reason;
    block_.hold(reason);
    delay_.hold(reason);
    QDBusConnection::systemBus().connect("org.freedesktop.login1", "/org/freedesktop/login1",
                                         "org.freedesktop.login1.Manager", "PrepareForShutdown", this,
                                         SLOT(prepareForShutdown(bool)));
}

void PosixSession::release() {
    reason_.clear();
    block_.release();
    delay_.release();
    QDBusConnection::systemBus().disconnect("org.freedesktop.login1", "/org/freedesktop/login1",
                                            "org.freedesktop.login1.Manager", "PrepareForShutdown", this,
                                            SLOT(prepareForShutdown(bool)));
}

void PosixSession::prepareForShutdown(bool begins) {
    if (begins)
        end();
}

void PosixSession::refuse(QSessionManager& manager) const {
    if (reason_.isEmpty() || !manager.allowsInteraction())
        return;
    manager.cancel();
    // The session manager tells no reason.
    native::showNotification(QGuiApplication::applicationDisplayName(), reason_);
}

bool PosixSession::eventFilter(QObject*, QEvent* event) {
    // Comes from a session manager that ends its session; the program's own end asks no window.
    if (event->type() != QEvent::Quit)
        return false;
    end();
    return true;
}

void PosixSession::end() const {
    if (ending)
        ending();
}

std::unique_ptr<DesktopSession> native::makeDesktopSession() {
    return std::make_unique<PosixSession>();
}

} // namespace tarnwell

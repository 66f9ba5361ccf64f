#include "desktop/login_manager.h"

#include <QDBusUnixFileDescriptor>

#include <algorithm>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>

namespace tarnwell::test {

namespace {

const char kManagerConnection[] = "login manager";
const char kService[] = "org.freedesktop.login1";

bool hasWriter(int lock) {
    pollfd end{lock, POLLIN, 0};
    ::poll(&end, 1, 0);
    return !(end.revents & POLLHUP);
}

} // namespace

LoginManager::LoginManager(const QByteArray& busAddress)
    : bus_(QDBusConnection::connectToBus(busAddress, kManagerConnection)) {
    if (!bus_.registerVirtualObject("/org/freedesktop/login1", this) || !bus_.registerService(kService))
        throw std::runtime_error("no place on the bus for a login manager");
}

LoginManager::~LoginManager() {
    bus_.unregisterService(kService);
    QDBusConnection::disconnectFromBus(kManagerConnection);
    for (const int lock : locks_)
        ::close(lock);
}

bool LoginManager::handleMessage(const QDBusMessage& call, const QDBusConnection&) {
    if (call.interface() != "org.freedesktop.login1.Manager" || call.member() != "Inhibit")
        return false;
    requests.push_back(call.arguments());
    call.setDelayedReply(true);
    if (answers == Answer::AtOnce)
        handOut(call);
    else if (answers == Answer::WhenTold)
        waiting_ = call;
    else
        bus_.send(call.createErrorReply(QDBusError::AccessDenied, "not today"));
    return true;
}

void LoginManager::answerNow() {
    handOut(waiting_);
}

void LoginManager::prepareForShutdown(bool begins) {
    QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/login1",
                                                     "org.freedesktop.login1.Manager", "PrepareForShutdown");
    signal.setArguments({begins});
    bus_.send(signal);
}

int LoginManager::held() const {
    return static_cast<int>(std::count_if(locks_.begin(), locks_.end(), hasWriter));
}

void LoginManager::handOut(const QDBusMessage& call) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    locks_.push_back(ends[0]);
    bus_.send(call.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(ends[1])))); // takes a copy
    ::close(ends[1]);
}

} // namespace tarnwell::test

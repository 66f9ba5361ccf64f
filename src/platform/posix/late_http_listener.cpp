#include "platform/posix/late_http_listener.h"

#include "platform/native.h"

#include <QCoreApplication>
#include <QLibrary>

namespace tarnwell {

namespace {

/// Null, and the user is told, if somebody has copied the program alone.
std::unique_ptr<HttpListener> load() {
    using Make = HttpListener* (*)();
    const auto make = reinterpret_cast<Make>(QLibrary::resolve(
        QCoreApplication::applicationDirPath() + "/plugins/libtarnwell_http", "tarnwellMakeHttpListener"));
    if (!make) {
        native::showNotification("Tarnwell GUI",
                                 "There will be no status page: libtarnwell_http.so is missing "
                                 "in the folder plugins beside the program.");
        return nullptr;
    }
    return std::unique_ptr<HttpListener>(make());
}

} // namespace

bool LateHttpListener::listen(quint16 port) {
    if (!listener_) {
        listener_ = load();
        if (!listener_)
            return false;
        listener_->received = [this](const QByteArray& bytes) { received(bytes); };
    }
    return listener_->listen(port);
}

void LateHttpListener::close() {
    if (listener_)
        listener_->close();
}

void LateHttpListener::send(const QByteArray& bytes) {
    if (listener_)
        listener_->send(bytes);
}

std::unique_ptr<HttpListener> native::makeHttpListener() {
    return std::make_unique<LateHttpListener>();
}

} // namespace tarnwell

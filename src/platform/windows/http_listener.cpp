#include "platform/http/qt_http_listener.h"
#include "platform/native.h"

namespace tarnwell {

std::unique_ptr<HttpListener> native::makeHttpListener() {
    return std::make_unique<QtHttpListener>();
}

} // namespace tarnwell

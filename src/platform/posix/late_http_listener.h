#pragma once

#include "platform/ports.h"

#include <memory>

namespace tarnwell {

/// Loads what listens when it is first wanted. Most users never turn the status page on, and the toolkit's
/// network library brings others for proxies and logins along, which all would read from the disk at each
/// start.
class LateHttpListener final : public HttpListener {
public:
    bool listen(quint16 port) override;
    void close() override;
    void send(const QByteArray& bytes) override;

private:
    std::unique_ptr<HttpListener> listener_;
};

} // namespace tarnwell

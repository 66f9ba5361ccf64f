#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Sends an echo in the first way that this user may use: a datagram socket, a raw socket, the system's ping
/// program.
class PosixPing : public Ping {
public:
    Reply sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) override;

private:
    quint16 sequence_ = 0; ///< so that a late reply to one echo is never taken for that to the next
};

} // namespace tarnwell

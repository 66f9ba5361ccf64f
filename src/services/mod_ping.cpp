#include "services/mod_ping.h"

#include "base/internet_address.h"

namespace tarnwell {

namespace {

constexpr int kTimeoutMs = 500;
constexpr int kSuccess = 0;

/// No single machine has the address of all hosts, or none.
bool namesOneHost(quint32 address) {
    return address != 0 && address != 0xFFFFFFFF;
}

} // namespace

qint32 PingConsole(const QString& address, Ping& ping) {
    const std::optional<quint32> host = parseInternetAddress(address);
    if (!host || !namesOneHost(*host)) {
        return kNoAnswer;
    }
    const Ping::Reply reply = ping.sendEcho(*host, QByteArrayLiteral("hello"), kTimeoutMs);
    return reply.status == kSuccess ? reply.roundTripMs : kNoAnswer;
}

} // namespace tarnwell

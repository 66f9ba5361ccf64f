#include "platform/posix/posix_ping.h"

#include "platform/native.h"
#include "platform/posix/echo_socket.h"
#include "platform/posix/ping_program.h"

namespace tarnwell {

Ping::Reply PosixPing::sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) {
    ++sequence_;
    for (const EchoSocket kind : {EchoSocket::Datagram, EchoSocket::Raw}) {
        if (const auto reply = echoOverSocket(kind, address, sequence_, payload, timeoutMs)) {
            return *reply;
        }
    }
    return echoByProgram(QStringLiteral("ping"), address, payload, timeoutMs);
}

std::unique_ptr<Ping> native::makePing() {
    return std::make_unique<PosixPing>();
}

} // namespace tarnwell

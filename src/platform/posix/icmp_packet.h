#pragma once

#include <QByteArray>

/// The bytes of an ICMP echo.
namespace tarnwell::icmp {

struct Echo {
    quint16 id = 0;
    quint16 sequence = 0;
    QByteArray payload;
};

QByteArray request(const Echo& echo);

/// Whether a message that was received answers this very request.
bool isReplyTo(const Echo& echo, const QByteArray& message);

/// The ICMP message in a datagram that still has its IP header; empty if it holds none.
QByteArray withoutIpHeader(const QByteArray& datagram);

/// The checksum of the internet protocols: 0 over a message that carries its own.
quint16 checksum(const QByteArray& bytes);

} // namespace tarnwell::icmp

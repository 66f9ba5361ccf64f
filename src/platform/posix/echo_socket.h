#pragma once

#include "platform/ports.h"

#include <optional>

namespace tarnwell {

/// Which socket carries an echo. Systems differ in what they allow to whom.
enum class EchoSocket {
    Datagram, ///< for users of the groups that the system lets ping; the system sets the id
    Raw,      ///< for the administrator
};

/// Sends one echo over such a socket and waits for its reply. Nothing if the user may not open one.
std::optional<Ping::Reply> echoOverSocket(EchoSocket kind, quint32 address, quint16 sequence,
                                          const QByteArray& payload, int timeoutMs);

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// The result for a console that cannot be reached, for whatever reason.
inline constexpr qint32 kNoAnswer = -1;

/// Asks a console on the network for a sign of life, for at most half a second; the windows stand still
/// meanwhile. Returns the milliseconds that the answer took, which may be 0, or kNoAnswer; a text that is no
/// address is never asked.
qint32 PingConsole(const QString& address, Ping& ping);

} // namespace tarnwell

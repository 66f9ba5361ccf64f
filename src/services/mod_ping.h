#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Asks a console on the network for a sign of life, for at most half a second; the windows stand still
/// meanwhile. Returns the milliseconds that the answer took, which may be 0, or -1 if the console cannot be
/// reached for whatever reason, an address that is none included.
qint32 PingConsole(const QString& address, Ping& ping);

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Sends one echo by the system's own ping program, which may do what its user may not. `program`: a path, or
/// a name to be found on PATH.
Ping::Reply echoByProgram(const QString& program, quint32 address, const QByteArray& payload, int timeoutMs);

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Asks a process to end, by its id; nothing is ended by force.
class cKillProcess {
public:
    explicit cKillProcess(Processes& processes) : processes_(processes) {}

    QString version() const { return "Kill Process Class v0.1 BETA by Corvin Sable"; }
    /// False if the process has gone or offers nothing that could be closed.
    bool KillProcess(qint64 lProcessID) { return processes_.requestClose(lProcessID); }
    bool PIDInUse(qint64 lProcessID) const { return processes_.exists(lProcessID); }

private:
    Processes& processes_;
};

} // namespace tarnwell

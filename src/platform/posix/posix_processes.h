#pragma once

#include "platform/ports.h"

namespace tarnwell {

class PosixProcesses : public Processes {
public:
    bool requestClose(qint64 processId) override;
    bool exists(qint64 processId) const override;
};

} // namespace tarnwell

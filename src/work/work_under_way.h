#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// What the desktop knows of running work. For as long as this lives the machine does not fall asleep by
/// itself; when the work ends, in whatever way, it may again, and the task button shows no progress any more.
class WorkUnderWay {
public:
    explicit WorkUnderWay(const Ports& ports) : ports_(ports) {
        ports_.wakeLock.hold(QStringLiteral("Work on PS2 games is under way"));
    }
    ~WorkUnderWay() {
        ports_.wakeLock.release();
        ports_.taskbar.clear();
    }
    WorkUnderWay(const WorkUnderWay&) = delete;
    WorkUnderWay& operator=(const WorkUnderWay&) = delete;

private:
    const Ports& ports_;
};

} // namespace tarnwell

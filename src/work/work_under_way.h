#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// What the desktop knows of running work. For as long as this lives the machine does not fall asleep by
/// itself, and the system is asked to wait with the end of the user's session; when the work ends, in
/// whatever way, both may come again, and the task button shows no progress any more.
class WorkUnderWay {
public:
    explicit WorkUnderWay(const Ports& ports) : ports_(ports) {
        const QString reason = QStringLiteral("Work on PS2 games is under way");
        ports_.wakeLock.hold(reason);
        ports_.session.holdUp(reason);
    }
    ~WorkUnderWay() {
        ports_.session.release();
        ports_.wakeLock.release();
        ports_.taskbar.clear();
    }
    WorkUnderWay(const WorkUnderWay&) = delete;
    WorkUnderWay& operator=(const WorkUnderWay&) = delete;

private:
    const Ports& ports_;
};

} // namespace tarnwell

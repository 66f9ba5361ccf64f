#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Waits in the event queue of Qt. The end of the program is decided here alone: closing the last window, or
/// hiding it to the tray, does not end anything.
class QtEventPump : public EventPump {
public:
    QtEventPump();

    void pump() override;
    void pumpFor(int milliseconds) override;
    void waitForEvent(int milliseconds) override;
    void end() override;
    bool ended() const override { return ended_; }

    /// Runs the program until its end is asked for, which may have happened already.
    int run();

    /// For every other port that serves events: called when its wait is over.
    void throwIfEnded() const;

private:
    void servePending() const;
    /// Sleeps until an event comes, at the latest for the given time, and serves what has come. User input is
    /// never left out: it would only be kept and replayed to the wrong state, and Cancel would freeze.
    void sleepAndServe(int milliseconds) const;

    bool ended_ = false;
};

} // namespace tarnwell

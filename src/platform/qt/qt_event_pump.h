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
    bool ended_ = false;
};

} // namespace tarnwell

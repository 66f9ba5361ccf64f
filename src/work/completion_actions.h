#pragma once

#include "tool/tool_channel.h"

namespace tarnwell {

/// What happens when work has ended: the console and the PC are turned off if the status window says so. Its
/// check boxes are the run's own copy of the settings: a tick during a run counts for this run alone.
class CompletionActions {
public:
    CompletionActions(Shared& shared, ToolChannel& channel) : shared_(shared), channel_(channel) {}

    /// Sets the check boxes of the status window from the settings, at the start of a run. Only a networked
    /// console can be turned off.
    void offerChoices();

    /// After an install or a queue that was not cancelled; whether it worked is not asked.
    void turnOffWhatIsTicked();

private:
    void turnPcOff();

    Shared& shared_;
    ToolChannel& channel_;
};

} // namespace tarnwell

#pragma once

#include <QSocketNotifier>

#include <functional>
#include <optional>

namespace tarnwell {

/// For as long as this lives, the first signal that asks the program to end (SIGTERM, SIGHUP) calls `asked`
/// from the event loop. A second one ends the program at once, as it would without this: for one that hangs.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::function<void()> asked_;
    int reader_ = -1;
    std::optional<QSocketNotifier> notifier_;
};

} // namespace tarnwell

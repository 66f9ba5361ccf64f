#pragma once

#include "base/shared.h"

namespace tarnwell {

/// Where every event of a window, the tray or a timer enters the program. A fault of a handler ends that
/// handler and is told in one message box; the program goes on. Once the end of the program was asked for,
/// interrupted handlers end here in silence.
class EventDispatcher {
public:
    explicit EventDispatcher(Shared& shared) : shared_(shared) {}
    void dispatch(const std::function<void()>& handler);

private:
    void report(const QString& text);

    Shared& shared_;
};

} // namespace tarnwell

#include "status/wait_seconds.h"

#include "platform/ports.h"

#include <cmath>

namespace tarnwell {

void WaitSeconds(double delay, const Ports& ports) {
    const double start = ports.clock.secondsSinceMidnight();
    do {
        ports.pump.waitForEvent(EventPump::kLookAgainMilliseconds);
    } while (std::abs(ports.clock.secondsSinceMidnight() - start) < delay);
}

} // namespace tarnwell

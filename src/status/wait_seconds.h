#pragma once

namespace tarnwell {

struct Ports;

/// Lets events in until the time of day differs by `delay` seconds from what it was. A wait that meets
/// midnight ends there.
void WaitSeconds(double delay, const Ports& ports);

} // namespace tarnwell

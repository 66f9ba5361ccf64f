#pragma once

namespace tarnwell {

struct Ports;

/// Lets events in until the time of day is `delay` seconds later than it was. Nothing guards against
/// midnight: a wait across it does not end by itself.
void WaitSeconds(double delay, const Ports& ports);

} // namespace tarnwell

#pragma once

namespace tarnwell {

struct Ports;

/// Lets events in until the time of day has moved on by `delay` seconds. A wait across midnight starts from
/// a time of day that comes again only the next day.
void WaitSeconds(double delay, const Ports& ports);

} // namespace tarnwell

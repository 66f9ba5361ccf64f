#pragma once

#include <QString>

namespace tarnwell {

class Clock;

/// How long ago a tick count was taken; right across the point where tick counts wrap round, too.
qint32 MillisecondsSince(qint32 startTick, const Clock& clock);

/// The milliseconds since some start tick as hours, minutes and seconds; hours go beyond 99 as needed. A
/// start tick of 0 means "never started" and shows as no time at all.
QString FormatElapsed(qint32 milliseconds, const Clock& clock);

} // namespace tarnwell

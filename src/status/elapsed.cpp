#include "status/elapsed.h"

#include "base/text_primitives.h"
#include "platform/ports.h"

namespace tarnwell {

qint32 MillisecondsSince(qint32 startTick, const Clock& clock) {
    return static_cast<qint32>(static_cast<quint32>(clock.tickCount()) - static_cast<quint32>(startTick));
}

QString FormatElapsed(qint32 milliseconds, const Clock& clock) {
    if (milliseconds == clock.tickCount())
        return "00:00:00";
    const qint32 seconds = milliseconds / 1000;
    const qint32 hours = seconds / 3600;
    const qint32 minutes = seconds / 60 % 60;
    return FormatNumber(hours, "00") + ':' + FormatNumber(minutes, "00") + ':' +
           FormatNumber(seconds % 60, "00");
}

} // namespace tarnwell

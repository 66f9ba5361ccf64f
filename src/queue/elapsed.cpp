#include "queue/elapsed.h"

#include "interpreter/text_primitives.h"
#include "platform/ports.h"

namespace tarnwell {

QString FormatElapsed(qint32 milliseconds, const Clock& clock) {
    if (milliseconds == clock.tickCount())
        return "00:00:00";
    const qint32 seconds = milliseconds / 1000;
    const qint32 hours = seconds / 3600;
    const qint32 rest = seconds % 3600;
    return FormatNumber(hours, "00") + ':' + FormatNumber(rest / 60, "00") + ':' +
           FormatNumber(rest % 60, "00");
}

} // namespace tarnwell

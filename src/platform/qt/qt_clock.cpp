#include "platform/qt/qt_clock.h"

#include <QTime>

namespace tarnwell {

qint32 QtClock::tickCount() const {
    // A start tick of 0 means "never started", so the count begins at 1.
    return static_cast<qint32>(sinceStart_.elapsed() + 1);
}

double QtClock::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

#include <QElapsedTimer>

namespace tarnwell {

class QtClock : public Clock {
public:
    QtClock() { sinceStart_.start(); }
    qint32 tickCount() const override;
    double secondsSinceMidnight() const override;

private:
    QElapsedTimer sinceStart_;
};

} // namespace tarnwell

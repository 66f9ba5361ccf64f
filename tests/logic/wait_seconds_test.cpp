#include "status/wait_seconds.h"
#include "support/fake_ports.h"

#include <gtest/gtest.h>

namespace tarnwell::test {

TEST(WaitSeconds, LetsEventsInUntilTheTimeHasGoneBy) {
    FakePorts ports;
    const qint64 start = ports.clock.now;
    int served = 0;
    ports.pump.after(400, [&] { ++served; });
    ports.pump.after(900, [&] { ++served; });
    WaitSeconds(1.0, ports.ports());
    EXPECT_EQ(served, 2);
    EXPECT_GE(ports.clock.now - start, 1000);
    EXPECT_LE(ports.clock.now - start, 1050);
    EXPECT_LE(ports.pump.pumps, 50) << "asleep in between";
}

TEST(WaitSeconds, AWaitThatMeetsMidnightEndsThere) {
    FakePorts ports;
    ports.clock.secondsAtZero = 24 * 60 * 60 - 1.5; // half a second before midnight
    ports.pump.after(5000, [&] { ports.pump.end(); });
    const qint64 start = ports.clock.now;
    WaitSeconds(1.0, ports.ports());
    EXPECT_LE(ports.clock.now - start, 550);
}

} // namespace tarnwell::test

#include "platform/helpers.h"
#include "platform/system_helpers.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

using test::runProgram;

/// How long it took, in ms.
template <typename Act>
qint64 timed(Act act) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    act();
    return sinceStart.elapsed();
}

TEST(EventPump, PumpServesWhatIsPendingAndReturns) {
    QtEventPump pump;
    int served = 0;
    QTimer::singleShot(0, qApp, [&] { QTimer::singleShot(0, qApp, [&] { ++served; }); });
    const qint64 elapsed = timed([&] { pump.pump(); });
    EXPECT_EQ(served, 1) << "an event that another one brings about is pending as well";
    EXPECT_LT(elapsed, 1000);
}

TEST(EventPump, PumpReturnsThoughTheProgramIsNeverIdle) {
    QtEventPump pump;
    QTimer restless;
    restless.start(0);
    EXPECT_LT(timed([&] { pump.pump(); }), 1000);
}

TEST(EventPump, PumpForLastsAtLeastItsTime) {
    QtEventPump pump;
    const qint64 elapsed = timed([&] { pump.pumpFor(60); });
    EXPECT_GE(elapsed, 60);
    EXPECT_LT(elapsed, 1000);
}

TEST(EventPump, PumpForCostsNoProcessorTime) {
    QtEventPump pump;
    const double before = test::processorSeconds();
    pump.pumpFor(500);
    EXPECT_LT(test::processorSeconds() - before, 0.15);
}

TEST(EventPump, WaitForEventCostsNoProcessorTime) {
    QtEventPump pump;
    const double before = test::processorSeconds();
    pump.waitForEvent(500);
    EXPECT_LT(test::processorSeconds() - before, 0.15);
}

TEST(EventPump, PumpForServesATimerWhenItIsDue) {
    QtEventPump pump;
    QElapsedTimer sinceStart;
    sinceStart.start();
    qint64 servedAfter = -1;
    QTimer::singleShot(50, Qt::PreciseTimer, qApp, [&] { servedAfter = sinceStart.elapsed(); });
    pump.pumpFor(1000);
    EXPECT_GE(servedAfter, 49);
    EXPECT_LT(servedAfter, 900);
}

TEST(EventPump, PumpForNothingStillServesWhatIsPending) {
    QtEventPump pump;
    bool served = false;
    QTimer::singleShot(0, qApp, [&] { served = true; });
    pump.pumpFor(0);
    EXPECT_TRUE(served);
    EXPECT_NO_THROW(pump.pumpFor(-5));
}

TEST(EventPump, WaitForEventReturnsWithTheFirstEvent) {
    QtEventPump pump;
    bool served = false;
    QTimer::singleShot(30, qApp, [&] { served = true; });
    const qint64 elapsed = timed([&] {
        while (!served) {
            pump.waitForEvent(test::kPatienceMs);
        }
    });
    EXPECT_LT(elapsed, 1000);
}

TEST(EventPump, EventsThatCameDuringAnotherWaitAreNotSleptOver) {
    QtEventPump pump;
    int served = 0;
    const qint64 elapsed = timed([&] {
        for (int wait = 0; wait < 5; ++wait) {
            QTimer::singleShot(1, qApp, [&] { QTimer::singleShot(0, qApp, [&] { ++served; }); });
            pump.pumpFor(10);
        }
        while (served < 5) {
            pump.waitForEvent(test::kPatienceMs);
        }
    });
    EXPECT_LT(elapsed, 1000);
}

TEST(EventPump, WaitForEventGivesUpInTime) {
    QtEventPump pump;
    pump.pump();
    EXPECT_LT(timed([&] { pump.waitForEvent(40); }), 1000);
    EXPECT_LT(timed([&] { pump.waitForEvent(0); }), 1000);
}

TEST(EventPump, AHandlerMayWaitInTheMiddleOfAnotherWait) {
    QtEventPump pump;
    bool inner = false;
    QTimer::singleShot(0, qApp, [&] {
        pump.pumpFor(120);
        inner = true;
    });
    const qint64 elapsed = timed([&] { pump.pumpFor(40); });
    EXPECT_TRUE(inner);
    EXPECT_GE(elapsed, 120);
    EXPECT_LT(elapsed, 1000) << "the outer wait was over long ago";
}

TEST(EventPump, WhatIsToBeDeletedLaterIsDeletedDuringALongWait) {
    QtEventPump pump;
    bool deleted = false;
    auto* const object = new QObject;
    QObject::connect(object, &QObject::destroyed, qApp, [&] { deleted = true; });
    runProgram(pump, [&] {
        QTimer::singleShot(0, object, [object] { object->deleteLater(); });
        pump.pumpFor(50);
        EXPECT_TRUE(deleted);
        pump.end();
    });
}

TEST(EventPump, EndReturnsAndTheProgramEnds) {
    QtEventPump pump;
    bool returned = false;
    runProgram(pump, [&] {
        EXPECT_FALSE(pump.ended());
        pump.end();
        returned = true;
    });
    EXPECT_TRUE(returned);
    EXPECT_TRUE(pump.ended());
}

TEST(EventPump, AnEndBeforeTheProgramRunsIsKept) {
    QtEventPump pump;
    pump.end();
    EXPECT_EQ(pump.run(), 0);
}

TEST(EventPump, EachWaitThrowsOnceTheEndWasAskedFor) {
    QtEventPump pump;
    pump.end();
    EXPECT_THROW(pump.pump(), ProgramEnded);
    EXPECT_THROW(pump.pumpFor(test::kPatienceMs), ProgramEnded);
    EXPECT_THROW(pump.waitForEvent(test::kPatienceMs), ProgramEnded);
}

TEST(EventPump, AWaitUnderWayThrowsAtOnceWhenTheEndIsAskedFor) {
    for (const auto& wait : std::vector<std::function<void(QtEventPump&)>>{
             [](QtEventPump& pump) { pump.pump(); },
             [](QtEventPump& pump) { pump.pumpFor(test::kPatienceMs); },
             [](QtEventPump& pump) { pump.waitForEvent(test::kPatienceMs); }}) {
        QtEventPump pump;
        QElapsedTimer sinceStart;
        sinceStart.start();
        runProgram(pump, [&] {
            QTimer::singleShot(0, qApp, [&] { pump.end(); });
            EXPECT_THROW(wait(pump), ProgramEnded);
        });
        EXPECT_LT(sinceStart.elapsed(), 1000);
    }
}

TEST(EventPump, AnEndInsideNestedWaitsEndsThemAll) {
    QtEventPump pump;
    int interrupted = 0;
    const auto waiting = [&] {
        try {
            pump.pumpFor(test::kPatienceMs);
            ADD_FAILURE() << "a later line of an interrupted handler ran";
        } catch (const ProgramEnded&) {
            ++interrupted;
        }
    };
    runProgram(pump, [&] {
        QTimer::singleShot(0, qApp, waiting);
        QTimer::singleShot(20, qApp, [&] { pump.end(); });
        waiting();
    });
    EXPECT_EQ(interrupted, 2);
}

TEST(EventPump, HidingTheLastWindowEndsNothing) {
    QtEventPump pump;
    QWidget window;
    bool goneOn = false;
    runProgram(pump, [&] {
        window.show();
        pump.pump();
        window.close();
        QTimer::singleShot(50, qApp, [&] {
            goneOn = true;
            pump.end();
        });
    });
    EXPECT_TRUE(goneOn);
}

} // namespace
} // namespace tarnwell

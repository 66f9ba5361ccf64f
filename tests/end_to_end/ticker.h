#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace tarnwell::test {

/// Nobody notices that a window answers a click so late.
#if defined(__SANITIZE_ADDRESS__)
constexpr double kMostWorkAtATimeMs = 1000; // ten to twenty times slower
#else
constexpr double kMostWorkAtATimeMs = 50;
#endif

/// Ticks among the window's events, and notes how long one of them had to wait. To be made and asked on the
/// thread of the windows.
class Ticker {
public:
    Ticker() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { tick(); });
    }

    void start() {
        ticks_ = 0;
        longestWaitMs_ = longestWorkMs_ = 0;
        lastTick_.start();
        lastWorkMs_ = workMs();
        timer_.start(kIntervalMs);
    }

    int ticks() const { return ticks_; }
    /// The longest time between two ticks, by the clock on the wall: a busy machine adds to it.
    double longestWaitMs() const { return longestWaitMs_; }
    /// The most that this thread has computed between two ticks, whatever else the machine did.
    double longestWorkMs() const { return longestWorkMs_; }

private:
    static constexpr int kIntervalMs = 5;
    static constexpr double kNanosecondsAMillisecond = 1e6;

    void tick() {
        ++ticks_;
        longestWaitMs_ = std::max(longestWaitMs_,
                                  static_cast<double>(lastTick_.nsecsElapsed()) / kNanosecondsAMillisecond);
        lastTick_.restart();
        const double work = workMs();
        longestWorkMs_ = std::max(longestWorkMs_, work - lastWorkMs_);
        lastWorkMs_ = work;
    }

    static double workMs() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 +
               static_cast<double>(time.tv_nsec) / kNanosecondsAMillisecond;
    }

    QTimer timer_;
    QElapsedTimer lastTick_;
    int ticks_ = 0;
    double longestWaitMs_ = 0, longestWorkMs_ = 0, lastWorkMs_ = 0;
};

} // namespace tarnwell::test

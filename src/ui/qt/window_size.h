#pragma once

#include <QSize>

namespace tarnwell::view {

/// How large a window is shown: as the program says, and by as much larger as the user has made it. In pixels
/// of the window's inside.
class WindowSize {
public:
    /// The size to show from now on for a window that stands at `now`, no larger than `room`.
    QSize show(const QSize& program, const QSize& now, const QSize& room) {
        takeGiven(now);
        shown_ = (program + given_).boundedTo(room);
        return shown_;
    }

    /// The scale of the window becomes so many times what it was.
    void grow(double times, const QSize& now) {
        takeGiven(now);
        given_ *= times;
    }

private:
    void takeGiven(const QSize& now) {
        if (shown_.isValid())
            given_ = (given_ + now - shown_).expandedTo({0, 0});
        shown_ = now;
    }

    QSize given_{0, 0}; ///< by the user
    QSize shown_;       ///< last, by the program
};

} // namespace tarnwell::view

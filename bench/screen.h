#pragma once

#include <QProcess>

struct xcb_connection_t;

namespace tarnwell::bench {

/// An X server of the benchmark's own, on which any program can be watched. Does nothing if the machine has
/// none.
class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    bool works() const { return connection_ != nullptr; }
    QString name() const { return name_; }
    /// Waits until a program shows a window that is no pop-up and no helper. False if none comes for
    /// `milliseconds`.
    bool waitForWindow(int milliseconds);

private:
    QProcess server_;
    QString name_;
    xcb_connection_t* connection_ = nullptr;
};

} // namespace tarnwell::bench

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <functional>

namespace tarnwell::bench {

constexpr double kNanosecondsPerMicrosecond = 1e3, kNanosecondsPerMillisecond = 1e6;

/// Nanoseconds of a clock that all processes share.
inline double now() {
    return static_cast<double>(std::chrono::steady_clock::now().time_since_epoch().count());
}

inline double nanosecondsOf(const std::function<void()>& work) {
    const double begin = now();
    work();
    return now() - begin;
}

/// Of a process by its id, or of this one.
inline double residentKilobytes(qint64 process = QCoreApplication::applicationPid()) {
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const QByteArray label = "VmRSS:";
    return text.mid(text.indexOf(label) + label.size()).trimmed().split(' ').constFirst().toDouble();
}

/// Prints the time and the memory in use as soon as the window and what is in it have been painted for the
/// first time, and ends the event loop.
class FirstPaint final : public QObject {
public:
    explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            // The widgets inside are painted right after the window, before any other event.
            QMetaObject::invokeMethod(
                this,
                [] {
                    std::printf("%.0f %.0f\n", now(), residentKilobytes());
                    std::fflush(stdout);
                    QCoreApplication::exit();
                },
                Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace tarnwell::bench

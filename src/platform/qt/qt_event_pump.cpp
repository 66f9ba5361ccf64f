#include "platform/qt/qt_event_pump.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QTimer>

#include <algorithm>

namespace tarnwell {

namespace {

/// A program that always has something pending (a timer of 0 ms) must not hold the caller of `pump`.
constexpr int kLongestPumpMs = 20;

} // namespace

QtEventPump::QtEventPump() {
    QApplication::setQuitOnLastWindowClosed(false);
}

void QtEventPump::pump() {
    throwIfEnded();
    servePending();
    throwIfEnded();
}

void QtEventPump::pumpFor(int milliseconds) {
    const QDeadlineTimer until(std::max(milliseconds, 0), Qt::PreciseTimer);
    pump();
    while (!ended_ && !until.hasExpired()) {
        sleepAndServe(static_cast<int>(std::max<qint64>(until.remainingTime(), 1)));
    }
    throwIfEnded();
}

void QtEventPump::waitForEvent(int milliseconds) {
    throwIfEnded();
    sleepAndServe(std::max(milliseconds, 0));
    throwIfEnded();
}

void QtEventPump::end() {
    ended_ = true;
    // A dialog of the system's own would not hear of the exit.
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const dialog = qobject_cast<QDialog*>(window); dialog != nullptr && dialog->isVisible())
            dialog->reject();
    }
    // Not quit(): that would ask the windows, and one that refuses to close would cancel the end.
    QCoreApplication::exit();
}

int QtEventPump::run() {
    return ended_ ? 0 : QCoreApplication::exec();
}

void QtEventPump::servePending() const {
    const QDeadlineTimer limit(kLongestPumpMs);
    auto* const queue = QAbstractEventDispatcher::instance();
    // On Windows the answer of the first round may be no more than that some loop before it was ended.
    queue->processEvents(QEventLoop::AllEvents);
    while (!ended_ && queue->processEvents(QEventLoop::AllEvents) && !limit.hasExpired()) {
    }
}

void QtEventPump::sleepAndServe(int milliseconds) const {
    {
        QTimer alarm;
        // An event handler may wait as well and use up the alarm meant for this wait; so the alarm repeats.
        alarm.setTimerType(Qt::PreciseTimer);
        alarm.start(milliseconds);
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    // On Windows the sleep may have ended by the mere notice of an event. Who sleeps again gets no second
    // one.
    servePending();
}

void QtEventPump::throwIfEnded() const {
    if (ended_) {
        throw ProgramEnded{};
    }
}

} // namespace tarnwell

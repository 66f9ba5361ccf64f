#pragma once

#include <QEvent>
#include <QObject>

#include <functional>

namespace tarnwell::view {

/// Lets `handle` see every event of a widget before the widget does; returning true keeps the event from it.
class EventWatcher final : public QObject {
public:
    using Handler = std::function<bool(QEvent&)>;

    EventWatcher(QObject& watched, Handler handle) : QObject(&watched), handle_(std::move(handle)) {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override { return handle_(*event); }

private:
    Handler handle_;
};

} // namespace tarnwell::view

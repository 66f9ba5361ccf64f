#include "ui/qt/paced_painting.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace tarnwell::view {

PacedPainting::PacedPainting(QWidget& window) : window_(window) {
    constexpr int kPauseMs = 100;
    pause_.setInterval(kPauseMs);
    pause_.setSingleShot(true);
    pause_.callOnTimeout(this, [this] { endPause(); });
    window.installEventFilter(this);
}

bool PacedPainting::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::UpdateRequest)
        return false;
    waiting_ = pause_.isActive();
    if (!waiting_)
        pause_.start();
    return waiting_;
}

void PacedPainting::endPause() {
    if (!std::exchange(waiting_, false))
        return;
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window_, &paint);
}

} // namespace tarnwell::view

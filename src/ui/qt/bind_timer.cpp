#include "ui/qt/bind_controls.h"
#include "ui/user_actions.h"

#include <QTimer>

namespace tarnwell::view {

void bindTimer(Binding& binding, ui::Timer& timer, QWidget* parent) {
    auto* clock = new QTimer(parent);
    clock->setObjectName(timer.name);
    const auto show = [&timer, clock] {
        if (timer.enabled && timer.interval > 0)
            clock->start(timer.interval);
        else
            clock->stop();
    };
    binding.follow(timer.enabled.changed, *clock, show);
    binding.listen(timer.interval.changed, *clock, show);
    QObject::connect(clock, &QTimer::timeout, clock, [&timer] { ui::tick(timer); });
}

} // namespace tarnwell::view

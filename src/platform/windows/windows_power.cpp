#include "platform/windows/windows_power.h"

#include "platform/native.h"
#include "platform/windows/hidden_start.h"
#include "platform/windows/system.h"

namespace tarnwell {

void WindowsPower::shutDown() {
    start_(systemFolder_ + QStringLiteral("\\shutdown.exe"), QStringLiteral("-s -f -t 00"));
}

void WindowsPower::standBy() {
    start_(systemFolder_ + QStringLiteral("\\rundll32.exe"), QStringLiteral("powrprof.dll,SetSuspendState"));
}

std::unique_ptr<Power> native::makePower() {
    return std::make_unique<WindowsPower>(systemFolder(), startHidden);
}

} // namespace tarnwell

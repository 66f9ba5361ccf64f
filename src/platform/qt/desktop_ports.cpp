#include "platform/desktop_ports.h"

#include "platform/native.h"

namespace tarnwell {

DesktopPorts::DesktopPorts(const QIcon& icon, std::function<double()> pixelsPerTwip)
    : dialogs(pump), tray(icon), windows(std::move(pixelsPerTwip)), processes(native::makeProcesses()),
      sound(native::makeSound()), power(native::makePower()), ping(native::makePing()) {}

Ports DesktopPorts::ports() {
    return {pump, clock, launcher, *processes, dialogs, tray, *sound, *power, *ping, folders, windows};
}

} // namespace tarnwell

#include "platform/qt/desktop_ports.h"

#include "platform/native.h"

namespace tarnwell {

DesktopPorts::DesktopPorts(const QIcon& icon, std::function<double()> pixelsPerTwip,
                           std::function<QColor(std::int32_t)> toColor, QtSystemFolders systemFolders)
    : dialogs(pump, std::move(toColor)), tray(icon), folders(std::move(systemFolders)),
      windows(std::move(pixelsPerTwip)), processes(native::makeProcesses()), sound(native::makeSound()),
      power(native::makePower()), ping(native::makePing()), listener(native::makeHttpListener()),
      wakeLock(native::makeWakeLock()), session(native::makeDesktopSession()),
      taskbar(native::makeTaskbarProgress()) {}

Ports DesktopPorts::ports() {
    return {pump,  clock,     launcher, *processes, dialogs,  tray,     *sound,  *power,
            *ping, *listener, browser,  *wakeLock,  *session, *taskbar, folders, windows};
}

} // namespace tarnwell

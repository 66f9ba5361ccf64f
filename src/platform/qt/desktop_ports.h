#pragma once

#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_event_pump.h"
#include "platform/qt/qt_process_launcher.h"
#include "platform/qt/qt_system_folders.h"
#include "platform/qt/qt_tray.h"
#include "platform/qt/qt_url_opener.h"
#include "platform/qt/qt_window_manager.h"

namespace tarnwell {

/// Every real port, for the composition root. To be made after the QApplication and to be kept until the
/// program has ended.
struct DesktopPorts {
    DesktopPorts(const QIcon& icon, std::function<double()> pixelsPerTwip,
                 std::function<QColor(std::int32_t)> toColor,
                 QtSystemFolders systemFolders = QtSystemFolders());

    Ports ports();

    QtEventPump pump;
    QtClock clock;
    QtProcessLauncher launcher;
    QtDialogs dialogs;
    QtTray tray;
    QtUrlOpener browser;
    QtSystemFolders folders;
    QtWindowManager windows;
    std::unique_ptr<Processes> processes;
    std::unique_ptr<Sound> sound;
    std::unique_ptr<Power> power;
    std::unique_ptr<Ping> ping;
    std::unique_ptr<HttpListener> listener;
    std::unique_ptr<WakeLock> wakeLock;
    std::unique_ptr<DesktopSession> session;
    std::unique_ptr<TaskbarProgress> taskbar;
};

} // namespace tarnwell

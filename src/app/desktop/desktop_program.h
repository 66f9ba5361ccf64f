#pragma once

#include "app/program.h"
#include "platform/qt/desktop_ports.h"
#include "ui/qt/about_window_view.h"
#include "ui/qt/main_window_view.h"
#include "ui/qt/settings_window_view.h"
#include "ui/qt/status_window_view.h"

namespace tarnwell {

/// The program with real ports and real windows: the one place where everything meets. To be made after the
/// QApplication.
class DesktopProgram {
public:
    explicit DesktopProgram(const QtSystemFolders& folders = QtSystemFolders());

    /// Shows the main window and serves events until the program ends.
    int run();

    Program& program() { return program_; }
    DesktopPorts& ports() { return ports_; }
    view::MainWindowView& mainWindow() { return mainWindow_; }

private:
    void giveIconOnceShown();

    DesktopPorts ports_;
    Program program_;
    view::MainWindowView mainWindow_;
    view::SettingsWindowView settingsWindow_;
    view::StatusWindowView statusWindow_;
    view::AboutWindowView aboutWindow_;
};

} // namespace tarnwell

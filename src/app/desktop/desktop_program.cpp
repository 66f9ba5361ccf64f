#include "app/desktop/desktop_program.h"

#include "ui/qt/announcement.h"
#include "ui/qt/application_icon.h"
#include "ui/qt/colors.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/spoken_progress.h"

#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarnwell {

namespace {

/// The first window has been painted by then.
constexpr std::chrono::milliseconds kAfterTheStart{100};

} // namespace

DesktopProgram::DesktopProgram(const QtSystemFolders& folders)
    : ports_(
          view::applicationIcon(), [this] { return mainWindow_.currentScale().pixelsPerTwip(); },
          view::toColor, folders),
      program_(ports_.ports()), mainWindow_(program_.shared().frmMain),
      settingsWindow_(program_.shared().frmSettings.untouched()),
      statusWindow_(program_.shared().frmStatus.untouched()),
      aboutWindow_(program_.shared().frmAbout.untouched()) {
    // So that a panel finds the icon and the name of the entry in its menu.
    QGuiApplication::setDesktopFileName(QStringLiteral("tarnwell-gui"));
    giveIconOnceShown();
    // The desktop's word on its trays is asked for over a bus, and may be long in coming.
    QTimer::singleShot(kAfterTheStart, &mainWindow_, [this] { ports_.tray.look(); });
    ports_.tray.makeMenu = [this] { return &mainWindow_.menu(program_.shared().frmMain.mnuSystray); };
    new view::SpokenProgress(
        program_.shared().frmMain, program_.shared().frmStatus.untouched(),
        [this](const QString& text) { view::announce(mainWindow_, text); }, mainWindow_);
    mainWindow_.hideMinimises = [this] { return !ports_.tray.available(); };
    mainWindow_.restored = [this] { program_.hideAndRestore().restore(); };
}

void DesktopProgram::giveIconOnceShown() {
    // Desktops take an icon in all its sizes, and reading those takes as long as laying out the window.
    new view::EventWatcher(mainWindow_, [given = false](QEvent& event) mutable {
        if (event.type() == QEvent::Paint && !std::exchange(given, true))
            QTimer::singleShot(0, qApp, [] { QGuiApplication::setWindowIcon(view::applicationIcon()); });
        return false;
    });
}

int DesktopProgram::run() {
    program_.start();
    return ports_.pump.run();
}

} // namespace tarnwell

#include "app/desktop_program.h"

#include "ui/qt/application_icon.h"

#include <QGuiApplication>

namespace tarnwell {

DesktopProgram::DesktopProgram(const QtSystemFolders& folders)
    : ports_(
          view::applicationIcon(), [this] { return mainWindow_.currentScale().pixelsPerTwip(); }, folders),
      program_(ports_.ports()), mainWindow_(program_.shared().frmMain),
      settingsWindow_(program_.shared().frmSettings.untouched()),
      statusWindow_(program_.shared().frmStatus.untouched()),
      aboutWindow_(program_.shared().frmAbout.untouched()) {
    QGuiApplication::setWindowIcon(view::applicationIcon());
    ports_.tray.makeMenu = [this] { return &mainWindow_.menu(program_.shared().frmMain.mnuSystray); };
    mainWindow_.hideMinimises = !ports_.tray.available();
    mainWindow_.restored = [this] { program_.hideAndRestore().restore(); };
}

int DesktopProgram::run() {
    program_.start();
    return ports_.pump.run();
}

} // namespace tarnwell

#include "app/exit.h"

#include "base/mod_tray_icon.h"
#include "services/mod_ping.h"

#include <QScopedValueRollback>

namespace tarnwell {

Exit::Exit(Shared& shared, cStdIO& StdIO) : shared_(shared), StdIO_(StdIO) {
    shared_.frmMain.cmdExit.Click = [this] { exitProgram(); };
    shared_.frmMain.mnuExit.Click = [this] { exitProgram(); };
    shared_.frmMain.Unload = [this](bool&) { exitProgram(); };
    shared_.frmMain.CloseAgain = [this] { exitProgram(); };
    shared_.ports.session.ending = [this] { endWithSession(); };
}

void Exit::exitProgram() {
    if (!consoleGoesOff_)
        turnConsoleOff();
    TrayRemove(shared_.ports.tray);
    shared_.frmAbout.untouched().unload();
    shared_.frmSettings.untouched().unload();
    shared_.frmStatus.untouched().unload();
    // The window's own Unload comes back here once more, and that second pass ends the program.
    shared_.frmMain.unload();
    end();
}

void Exit::turnConsoleOff() {
    const QString address = shared_.frmMain.txtIP.text;
    if (!shared_.frmMain.optLAN.value || shared_.config.number("ClosePS2") != 1)
        return;
    if (PingConsole(address, shared_.ports.ping) == kNoAnswer)
        return;
    const QScopedValueRollback waiting(consoleGoesOff_, true);
    StdIO_.ExecuteCommand(shared_.config.ToolPath() + " poweroff " + address);
}

void Exit::endWithSession() {
    // With the session goes the tool, wherever it is. Told now, it can still finish what it writes.
    StdIO_.interrupt();
    TrayRemove(shared_.ports.tray);
    shared_.ports.pump.end();
}

void Exit::end() {
    shared_.ports.pump.end();
    throw ProgramEnded{};
}

} // namespace tarnwell

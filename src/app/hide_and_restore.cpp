#include "app/hide_and_restore.h"

namespace tarnwell {

namespace {

const QString kMinimize = QStringLiteral("Minimize");
const QString kMaximize = QStringLiteral("Maximize");

} // namespace

HideAndRestore::HideAndRestore(Shared& shared) : shared_(shared) {
    shared_.frmMain.cmdMinimize.Click = [this] { hideMain(); };
    shared_.frmMain.mnuMinimize.Click = [this] { clickMinimizeEntry(); };
    shared_.ports.tray.doubleClicked = [this] { shared_.frmMain.dispatch([this] { restore(); }); };
    shared_.ports.tray.rightClicked = [this] {
        shared_.frmMain.dispatch([this] { shared_.frmMain.mnuSystray.popUpAtPointer(); });
    };
}

void HideAndRestore::hideMain() {
    shared_.frmMain.hide();
    shared_.frmMain.mnuMinimize.caption = kMaximize;
}

void HideAndRestore::clickMinimizeEntry() {
    if (shared_.frmMain.mnuMinimize.caption.get() != kMinimize) {
        restore();
        return;
    }
    if (shared_.jobRunning())
        shared_.frmStatus->hide();
    hideMain();
}

void HideAndRestore::restore() {
    // A tag in its bar means that the status window has shown a job and was not closed since.
    const bool statusWasUsed = !shared_.frmStatus.untouched().picCurrent.tag.get().isEmpty();
    if (shared_.jobRunning())
        shared_.frmStatus->showRestored();
    shared_.frmMain.showRestored();
    // During work a second time: its Cancel must not lie behind the main window.
    if (shared_.jobRunning() || statusWasUsed)
        shared_.frmStatus->showRestored();
    shared_.frmMain.mnuMinimize.caption = kMinimize;
}

} // namespace tarnwell

#include "status/device_display.h"

#include "base/shared.h"
#include "status/percent_bar.h"

namespace tarnwell {

void ClearFreeSpace(Shared& shared) {
    PercentBar(shared.frmMain.picDiskSpace, 100, 0, shared.ports.pump);
    shared.frmMain.lblDiskSpace.caption = "(no active device)";
}

void ShowGameCount(Shared& shared, int games) {
    shared.frmMain.fmBrowse.caption = QStringLiteral("Browse, Backup, and Delete - %1 Games").arg(games);
}

} // namespace tarnwell

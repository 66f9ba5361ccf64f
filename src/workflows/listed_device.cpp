#include "workflows/listed_device.h"

namespace tarnwell {

QString DeviceOnView(const ui::FrmMain& form) {
    return form.optLocal.value ? form.cmbHD.text() : form.txtIP.text;
}

bool requireListedDisk(Shared& shared, const QString& deviceOfGame) {
    const ui::FrmMain& form = shared.frmMain;
    const QString chosen = DeviceOnView(form);
    if (!form.optLocal.value || deviceOfGame == chosen)
        return true;
    shared.message("The list shows the games of " + deviceOfGame + ", but " +
                   (chosen.isEmpty() ? QStringLiteral("no disk") : chosen) +
                   " is chosen now. Nothing was done.\r\n\r\nChoose " + deviceOfGame +
                   " again, or press \"Refresh HDD\" to list the games of the chosen disk.");
    return false;
}

} // namespace tarnwell

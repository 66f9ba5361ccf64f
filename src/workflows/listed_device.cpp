#include "workflows/listed_device.h"

namespace tarnwell {

QString DeviceOnView(const ui::FrmMain& form) {
    return form.optLocal.value ? form.cmbHD.text() : form.txtIP.text;
}

bool isChosenDisk(const ui::FrmMain& form, const QString& deviceOfGame) {
    return !form.optLocal.value || deviceOfGame == DeviceOnView(form);
}

bool requireListedDisk(Shared& shared, const QString& deviceOfGame) {
    const QString chosen = DeviceOnView(shared.frmMain);
    if (isChosenDisk(shared.frmMain, deviceOfGame))
        return true;
    shared.message("The list shows the games of " + deviceOfGame + ", but " +
                   (chosen.isEmpty() ? QStringLiteral("no disk") : chosen) +
                   " is chosen now. Nothing was done.\r\n\r\nChoose " + deviceOfGame +
                   " again, or press \"Refresh HDD\" to list the games of the chosen disk.");
    return false;
}

} // namespace tarnwell

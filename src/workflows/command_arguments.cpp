#include "workflows/command_arguments.h"

#include "base/fault.h"
#include "base/text_primitives.h"
#include "interpreter/tool_commands.h"

namespace tarnwell {

namespace {

constexpr qsizetype kDriveNameLength = 4; ///< cd0:

QString unknownDrive(const QString& entry) {
    return "tarnwell.exe found the drive " + entry.left(kDriveNameLength) +
           " but did not tell which drive of this PC that is, so the disc in it cannot be read. Choose \"ISO "
           "File\" and then \"Optical Drive\" again to have the drives listed anew.";
}

} // namespace

QString ActiveDeviceLong(const ui::FrmMain& form) {
    return form.optLocal.value ? LocalDeviceLong(form.cmbHD.text()) : form.txtIP.text;
}

QString ActiveDeviceShort(const ui::FrmMain& form) {
    return form.optLocal.value ? LocalDeviceShort(form.cmbHD.text()) : form.txtIP.text;
}

QString ResolveOpticalDrive(const ui::FrmMain& form, const QString& entry) {
    const qint16 number = RoundToInt16(Val(Mid(entry, 3, 1)));
    const QString drive = form.cmbOptical.tag.get().split(',').value(number);
    if (drive.isEmpty())
        throw Fault(unknownDrive(entry));
    return drive == QLatin1String("0") ? entry.left(kDriveNameLength) : drive;
}

QString FlagsWord(const ui::FrmMain& form) {
    QString word;
    for (std::size_t i = 0; i < form.mnuFlags.size(); ++i) {
        if (form.mnuFlags[i].checked)
            word += '+' + QString::number(i + 1);
    }
    return word;
}

} // namespace tarnwell

#pragma once

#include "ui/frm_main.h"

/// The arguments of the tool's commands, as the main window stands right now.
namespace tarnwell {

/// The device that is in use: the address of the console as typed, or the chosen local disk.
QString ActiveDeviceLong(const ui::FrmMain& form);
QString ActiveDeviceShort(const ui::FrmMain& form);

/// The drive argument for an entry of the list of optical drives: the system's drive if it is known, else the
/// tool's own name for it. An entry that the last query does not know is a Fault.
QString ResolveOpticalDrive(const ui::FrmMain& form, const QString& entry);

/// The ticked compatibility flags as one word, such as +1+3+8.
QString FlagsWord(const ui::FrmMain& form);

} // namespace tarnwell

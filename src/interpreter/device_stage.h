#pragma once

#include "interpreter/stage.h"

#include <QString>

namespace tarnwell {

struct Shared;

/// Reads the tool's answer to "query" into the disk list and the copy menu (`blnQueryHD`), or into the list
/// of optical drives (`blnQueryOptical`). Later commands cut the device's name out of an entry's text again.
Then ReadDevices(Shared& shared, const QString& text);

/// Reads the same answer into the device list of the disk tools (`blnQuerySettings`), which shows the disks
/// that are still to be formatted, too.
void ReadSettingsDisks(Shared& shared, const QString& text);

} // namespace tarnwell

#pragma once

#include "interpreter/stage.h"

#include <QString>

namespace tarnwell {

struct Shared;

/// Reads the tool's answer to "cdvd_info2" into the install page. An answer that says nothing about a disc
/// leaves `blnDiscInfo` up for the next text.
Then ReadDisc(Shared& shared, const QString& text);

} // namespace tarnwell

#pragma once

#include "interpreter/stage.h"

#include <QString>

namespace tarnwell {

struct Shared;

/// Reads the tool's answer to "tarn_toc" into the game list, and enables what a list with games allows. Each
/// row takes over the list's tag: the device that was asked.
Then ReadGameList(Shared& shared, const QString& text);

} // namespace tarnwell

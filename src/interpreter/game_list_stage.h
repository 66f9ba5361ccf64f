#pragma once

#include "interpreter/stage.h"

#include <QString>

namespace tarnwell {

struct Shared;

/// Reads the tool's answer to "tarn_toc" into the game list, and enables what a list with games allows.
Then ReadGameList(Shared& shared, const QString& text);

/// Says above the game list how many games there are.
void ShowGameCount(Shared& shared, int games);

} // namespace tarnwell

#pragma once

#include "app/shared.h"

namespace tarnwell {

/// A game takes a whole number of 128 MB units of the disk. `size` is in MB; 0 stays 0.
qint32 RoundUp128(qint32 size);

/// Whether the game of the install page fits on the active device; if it does not, tells the user how much it
/// needs. A source whose size was never read is a Fault.
bool EnoughFreeSpace(Shared& shared);

} // namespace tarnwell

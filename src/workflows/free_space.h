#pragma once

#include "app/shared.h"

namespace tarnwell {

/// A game takes a whole number of 128 MB units of the disk: `size`, which is in MB, or the next greater
/// multiple. One that a 32-bit number cannot hold is a Fault.
qint32 RoundUp128(qint32 size);

/// Whether the game of the install page fits on the active device; if it does not, tells the user how much it
/// needs. A source whose size was never read is a Fault.
bool EnoughFreeSpace(Shared& shared);

} // namespace tarnwell

#pragma once

#include "base/shared.h"

namespace tarnwell {

/// A game takes a whole number of 128 MB units of the disk: `size`, which is in MB, or the next greater
/// multiple. One that a 32-bit number cannot hold is a Fault.
qint32 RoundUp128(qint32 size);

/// What the game of the install page needs of the active device, and what that has, in MB.
struct Room {
    qint32 needed;
    QString available; ///< as it was read

    bool enough() const;
};

/// A source whose size was never read is a Fault.
Room RoomForGame(const ui::FrmMain& form);

/// Tells the user that the game of the install page does not fit on the active device, and how much it needs,
/// or that the free space of that device was not read. Returns whether it fits. A source whose size was never
/// read is a Fault.
bool requireFreeSpace(Shared& shared);

} // namespace tarnwell

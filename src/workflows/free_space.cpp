#include "workflows/free_space.h"

#include "base/fault.h"
#include "base/text_primitives.h"
#include "workflows/listed_device.h"

#include <limits>

namespace tarnwell {

namespace {

constexpr qint32 kUnitMegabytes = 128;

qint32 sizeOfSource(const QString& tag) {
    bool isNumber = false;
    const double megabytes = tag.toDouble(&isNumber);
    if (!isNumber)
        throw Fault("The size of the game is not known, because the tool has not read the image or disc yet. "
                    "Choose the image file or the drive again, and wait until its size is shown.");
    return RoundToInt32(megabytes);
}

} // namespace

qint32 RoundUp128(qint32 size) {
    constexpr qint32 most = std::numeric_limits<qint32>::max() / kUnitMegabytes * kUnitMegabytes;
    if (size > most)
        throw Fault("The size of the game, " + QString::number(size) +
                    " MB, is more than any disk can hold. Choose the image file or the drive again.");
    // Below 0 the rest is so too, and without it the size is the next greater multiple already.
    const qint32 rest = size % kUnitMegabytes;
    return rest > 0 ? size - rest + kUnitMegabytes : size - rest;
}

bool Room::enough() const {
    return Val(available) >= needed;
}

Room RoomForGame(const ui::FrmMain& form) {
    return {.needed = RoundUp128(sizeOfSource(form.txtGameSize.tag)), .available = form.picDiskSpace.tag};
}

bool requireFreeSpace(Shared& shared) {
    if (!requireListedDisk(shared, shared.listedDevice))
        return false;
    const Room room = RoomForGame(shared.frmMain);
    if (room.enough())
        return true;
    shared.message("You do not have enough available space on your hard-drive to install this game.\r\n\r\n"
                   "To install this game you need " +
                   QString::number(room.needed) + "MB and you only have " + room.available + "MB available.");
    return false;
}

} // namespace tarnwell

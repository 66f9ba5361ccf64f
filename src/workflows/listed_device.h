#pragma once

#include "base/shared.h"

/// Where the games of the list were read. When another local disk is chosen they stay on view, and the tool
/// would look for their names on the wrong disk. So each row keeps its device in its tag.
namespace tarnwell {

/// Rows that are read while this lives are games of this device.
class ReadingGamesOf {
public:
    ReadingGamesOf(ui::ListView& games, const QString& device) : games_(games), outer_(games.tag) {
        games_.tag = device;
    }
    // Drawing the bar lets events in: one reading can begin and end in the middle of another.
    ~ReadingGamesOf() { games_.tag = outer_; }
    ReadingGamesOf(const ReadingGamesOf&) = delete;
    ReadingGamesOf& operator=(const ReadingGamesOf&) = delete;

private:
    ui::ListView& games_;
    const QString outer_;
};

/// The device that is in use as the window names it: the address, or the entry of the chosen disk.
QString DeviceOnView(const ui::FrmMain& form);

/// Whether what was read from this device belongs to the one that is chosen now. A console is always the
/// same, because all is emptied when its address changes.
bool isChosenDisk(const ui::FrmMain& form, const QString& deviceOfGame);

/// Tells the user that a game, or the free space, was read from another disk than the one that is chosen now.
/// Returns whether it is the same.
bool requireListedDisk(Shared& shared, const QString& deviceOfGame);

} // namespace tarnwell

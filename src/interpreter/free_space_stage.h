#pragma once

#include <QString>

namespace tarnwell {

struct Shared;

/// Whether a line of "tarn_toc" sums up the disk.
bool IsSummaryLine(const QString& line);
/// Fills the box of the free space from such a line and opens the disk for new games. The free space in MB
/// goes into the bar's tag, where installs look for it. A disk of no size is a Fault.
void ReadFreeSpace(Shared& shared, const QString& line);

} // namespace tarnwell

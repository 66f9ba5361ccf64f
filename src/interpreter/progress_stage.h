#pragma once

#include <QString>

namespace tarnwell {

struct Shared;

/// Whether the overall bar follows the whole queue or just the running job.
enum class ProgressOf { Queue, Job };

/// Reads a progress line such as "45%, 12 min remaining, 3.50 MB/sec" into the status window, the bars and
/// the tray tip. The percent "100" completes the job.
ProgressOf ReadProgress(Shared& shared, const QString& text);

} // namespace tarnwell

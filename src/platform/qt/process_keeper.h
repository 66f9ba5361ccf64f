#pragma once

#include <memory>

class QProcess;

namespace tarnwell {

/// Takes over a process that nobody listens to any more. Its input is closed, its output is read and dropped,
/// so that it never blocks on a full pipe, and it is left running when this program ends.
void keepUntilFinished(std::unique_ptr<QProcess> process);

} // namespace tarnwell

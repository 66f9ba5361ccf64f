#pragma once

#include <memory>

class QProcess;

namespace tarnwell {

/// Takes over a process that nobody listens to any more. Its input is closed, and it is left running when
/// this program ends.
void keepUntilFinished(std::unique_ptr<QProcess> process);

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Starts child processes with QProcess.
class QtProcessLauncher : public ProcessLauncher {
public:
    std::unique_ptr<ChildProcess> start(const QString& commandLine, QString& whyNot) override;
};

} // namespace tarnwell

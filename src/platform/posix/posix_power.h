#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Switches the machine off or to sleep through the system's service manager.
class PosixPower : public Power {
public:
    /// `program`: a path, or a name to be found on PATH.
    explicit PosixPower(QString program = QStringLiteral("systemctl")) : program_(std::move(program)) {}

    void shutDown() override;
    void standBy() override;

private:
    void start(const QStringList& arguments) const;

    QString program_;
};

} // namespace tarnwell

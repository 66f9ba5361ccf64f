#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// Switches the machine off or to sleep through the system's own commands.
class WindowsPower : public Power {
public:
    using Start = std::function<void(const QString& program, const QString& arguments)>;

    WindowsPower(QString systemFolder, Start start)
        : systemFolder_(std::move(systemFolder)), start_(std::move(start)) {}

    void shutDown() override;
    void standBy() override;

private:
    QString systemFolder_;
    Start start_;
};

} // namespace tarnwell

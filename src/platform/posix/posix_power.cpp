#include "platform/posix/posix_power.h"

#include "platform/native.h"

#include <QProcess>

namespace tarnwell {

void PosixPower::shutDown() {
    // -i: also while other users or inhibitors would hold it up, as a forced shutdown does.
    start({QStringLiteral("poweroff"), QStringLiteral("-i")});
}

void PosixPower::standBy() {
    start({QStringLiteral("suspend")});
}

void PosixPower::start(const QStringList& arguments) const {
    QProcess command;
    command.setProgram(program_);
    command.setArguments(arguments);
    command.setStandardInputFile(QProcess::nullDevice());
    command.setStandardOutputFile(QProcess::nullDevice());
    command.setStandardErrorFile(QProcess::nullDevice());
    command.startDetached();
}

std::unique_ptr<Power> native::makePower() {
    return std::make_unique<PosixPower>();
}

} // namespace tarnwell

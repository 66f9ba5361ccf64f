#include "platform/native.h"

#include <QDir>
#include <QStandardPaths>

namespace tarnwell {

QString native::applicationData() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    // A new account has none until the first program writes there.
    QDir().mkpath(folder);
    return QDir::toNativeSeparators(folder);
}

std::optional<WindowsProfile> native::windowsProfile() {
    return std::nullopt;
}

QString native::shortPath(const QString&) {
    return {};
}

} // namespace tarnwell

#include "platform/qt/qt_system_folders.h"

#include <QDir>

namespace tarnwell {

QtSystemFolders::QtSystemFolders(const QString& programFolder, const QString& applicationData)
    : programFolder_(QDir::toNativeSeparators(programFolder)),
      applicationData_(QDir::toNativeSeparators(applicationData)) {}

QString QtSystemFolders::commandInterpreter() const {
    return native::commandInterpreter();
}

std::optional<WindowsProfile> QtSystemFolders::windowsProfile() const {
    return native::windowsProfile();
}

} // namespace tarnwell

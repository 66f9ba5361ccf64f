#include "platform/qt/qt_system_folders.h"

#include <QDir>

namespace tarnwell {

namespace {

bool isInCodePage(const QString& text) {
    return QString::fromLocal8Bit(text.toLocal8Bit()) == text;
}

} // namespace

QtSystemFolders::QtSystemFolders(const QString& programFolder, const QString& applicationData)
    : programFolder_(QDir::toNativeSeparators(programFolder)),
      applicationData_(QDir::toNativeSeparators(applicationData)) {}

QString QtSystemFolders::commandInterpreter() const {
    return native::commandInterpreter();
}

std::optional<WindowsProfile> QtSystemFolders::windowsProfile() const {
    return native::windowsProfile();
}

QString QtSystemFolders::pathInCodePage(const QString& path) const {
    const QString name = isInCodePage(path) ? path : native::shortPath(path);
    return isInCodePage(name) ? name : QString();
}

} // namespace tarnwell

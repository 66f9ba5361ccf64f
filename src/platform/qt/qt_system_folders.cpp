#include "platform/qt/qt_system_folders.h"

#include "platform/native.h"

#include <QDir>

namespace tarnwell {

QtSystemFolders::QtSystemFolders(const QString& programFolder)
    : programFolder_(QDir::toNativeSeparators(programFolder)) {}

QString QtSystemFolders::commandInterpreter() const {
    return native::commandInterpreter();
}

} // namespace tarnwell

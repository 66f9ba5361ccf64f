#include "platform/qt/qt_system_folders.h"

#include "platform/native.h"

#include <QCoreApplication>
#include <QDir>

namespace tarnwell {

QString QtSystemFolders::programFolder() const {
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

QString QtSystemFolders::commandInterpreter() const {
    return native::commandInterpreter();
}

} // namespace tarnwell

#include "settings/tool_config.h"

#include "app/fault.h"
#include "app/replace_file.h"
#include "settings/tool_config_text.h"

#include <QDir>
#include <QFile>

#include <limits>

namespace tarnwell {

namespace {

constexpr qsizetype kMostCharacters = std::numeric_limits<qint16>::max();
constexpr qsizetype kMostBytesACharacter = 4;

QString pathIn(const QString& folder) {
    return folder + "tarnwell.conf";
}

Fault unreadable(const QString& path, const QString& why) {
    return Fault(
        QDir::toNativeSeparators(path) + " could not be read (" + why +
        "). The Tarnwell page of Settings & Tools does not show what is in it, and \"Save and Exit\" "
        "would replace it.");
}

QString readAll(const QString& path) {
    QFile file(path);
    // The second way makes the file if it is missing.
    if (!file.open(QIODevice::ReadOnly) && !file.open(QIODevice::ReadWrite))
        throw unreadable(path, file.errorString());
    QString text = QString::fromLocal8Bit(file.read(kMostCharacters * kMostBytesACharacter + 1));
    if (file.error() != QFileDevice::NoError)
        throw unreadable(path, file.errorString());
    if (text.size() > kMostCharacters)
        throw unreadable(path, "it is too long");
    return text;
}

} // namespace

QString ToolConfig::folder() const {
    return shared_.config.text("ApplicationData");
}

bool ToolConfig::exists() const {
    return existsIn(folder());
}

bool ToolConfig::existsIn(const QString& folder) {
    return FileExists(pathIn(folder));
}

void ToolConfig::LoadToolSettings() {
    try {
        ReadToolConfig(readAll(pathIn(folder())), folder(), *shared_.frmSettings.operator->());
    } catch (const Fault& fault) {
        // The settings of the tool are no reason not to start.
        shared_.message(fault.text());
    }
}

void ToolConfig::SaveToolSettings() {
    QString text = WriteToolConfig(folder(), shared_.frmSettings.untouched(), shared_.frmMain);
    ReplaceFile(pathIn(folder()), text.toLocal8Bit());
}

} // namespace tarnwell

#include "settings/tool_config.h"

#include "base/fault.h"
#include "base/replace_file.h"
#include "settings/tool_config_text.h"

#include <QDir>
#include <QFile>

#include <limits>

namespace tarnwell {

namespace {

const QString kFolderKey = QStringLiteral("ApplicationData");
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
    return folderOfThisRun_ ? *folderOfThisRun_ : shared_.config.text(kFolderKey);
}

void ToolConfig::setFolder(const QString& folder) {
    shared_.config.write(kFolderKey, folder);
    folderOfThisRun_.reset();
    if (shared_.config.text(kFolderKey) != folder)
        folderOfThisRun_ = folder;
}

bool ToolConfig::exists() const {
    return existsIn(folder());
}

bool ToolConfig::existsIn(const QString& folder) {
    return !folder.isEmpty() && FileExists(pathIn(folder));
}

void ToolConfig::LoadToolSettings() {
    // A bare name would be a file in whatever folder is the current one.
    if (folder().isEmpty())
        return;
    try {
        ReadToolConfig(readAll(pathIn(folder())), folder(), *shared_.frmSettings);
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

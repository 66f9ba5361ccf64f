#include "workflows/image_search.h"

#include "workflows/install_source.h"

#include <QDir>

namespace tarnwell {

ImageSearch::ImageSearch(const QStringList& paths) {
    for (const QString& path : paths) {
        if (!take(QFileInfo(path)))
            useless_ += QDir::toNativeSeparators(path);
    }
}

void ImageSearch::lookIntoNextFolder() {
    const QDir folder(folders_.takeFirst());
    if (!folder.isReadable())
        useless_ += QDir::toNativeSeparators(folder.path());
    const auto entries =
        folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& entry : entries)
        take(entry);
}

bool ImageSearch::take(const QFileInfo& entry) {
    const bool folder = entry.isDir();
    if (!folder && !(entry.isFile() && isInstallableImage(entry.filePath())))
        return false;
    const QString itself = entry.canonicalFilePath();
    if (seen_.contains(itself))
        return true;
    seen_ += itself;
    if (folder)
        folders_ += entry.absoluteFilePath();
    else
        images_ += QDir::toNativeSeparators(entry.absoluteFilePath());
    return true;
}

} // namespace tarnwell

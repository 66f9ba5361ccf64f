#pragma once

#include <QFileInfo>
#include <QSet>
#include <QStringList>

namespace tarnwell {

/// Looks for installable images among files and folders, in one folder after the other, so that the caller
/// can let events in between. Each image is found once and each folder entered once, however many links lead
/// there.
class ImageSearch {
public:
    /// Finds what needs no look into a folder.
    explicit ImageSearch(const QStringList& paths);

    /// The folder that is next; empty if the search is over.
    QString nextFolder() const { return folders_.value(0); }
    void lookIntoNextFolder();

    const QStringList& images() const { return images_; } ///< as full paths in the platform's own form
    /// Files that were named but are no images, and folders that cannot be read.
    const QStringList& useless() const { return useless_; }

private:
    bool take(const QFileInfo& entry);

    QStringList folders_, images_, useless_;
    QSet<QString> seen_; ///< what links lead to in the end
};

} // namespace tarnwell

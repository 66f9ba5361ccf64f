#include "base/picked_path.h"

#include <QFileInfo>

namespace tarnwell {

namespace {

/// Empty if there is no such name.
QString ownNameInKnownFolder(const SystemFolders& folders, const QString& path) {
    const qsizetype nameAt = path.size() - QFileInfo(path).fileName().size();
    const QString folder = folders.pathInCodePage(path.left(nameAt));
    const QString known = folder + path.mid(nameAt);
    const bool folderIsKnown = nameAt == 0 || !folder.isEmpty();
    return folderIsKnown && folders.pathInCodePage(known) == known ? known : QString();
}

std::optional<QString> orTell(Shared& shared, const QString& name, const QString& path) {
    if (!name.isEmpty())
        return name;
    shared.message(path + " cannot be used: its name has letters that tarnwell.exe and the files of settings "
                          "cannot hold, and there is no short name for it. Rename it, or choose another.");
    return std::nullopt;
}

} // namespace

QString KnownName(const SystemFolders& folders, const QString& path) {
    const QString own = ownNameInKnownFolder(folders, path);
    return own.isEmpty() ? folders.pathInCodePage(path) : own;
}

std::optional<QString> NameInCodePage(Shared& shared, const QString& path) {
    return orTell(shared, KnownName(shared.ports.folders, path), path);
}

std::optional<QString> NewNameInCodePage(Shared& shared, const QString& path) {
    return orTell(shared, ownNameInKnownFolder(shared.ports.folders, path), path);
}

} // namespace tarnwell

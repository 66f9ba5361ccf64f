#pragma once

#include "base/shared.h"

#include <optional>

/// The tool and the files of settings know only the letters of the system's 8-bit code page. A path with
/// other letters is called by its short name there; where the system keeps none, the user is told as soon as
/// the path is picked, and it is not taken.
namespace tarnwell {

/// What a file or folder that is there is called; empty if it has no such name.
QString KnownName(const SystemFolders& folders, const QString& path);

/// What a file or folder that is there is called; a folder has a separator at its end. Nothing if the user
/// was told.
std::optional<QString> NameInCodePage(Shared& shared, const QString& path);

/// The same for a file that is still to be written: its own name stands, its folder may have a short one.
std::optional<QString> NewNameInCodePage(Shared& shared, const QString& path);

} // namespace tarnwell

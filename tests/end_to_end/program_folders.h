#pragma once

#include <QStringList>

namespace tarnwell::test {

/// Folders as users choose them for their programs. A name stands for a folder in a scratch folder.
QStringList programFolders();

} // namespace tarnwell::test

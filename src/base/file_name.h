#pragma once

#include <QString>

namespace tarnwell {

/// A file name that is proposed to the user, as every file system takes it: what Windows or another system
/// forbids in names is replaced or left out. Other names stay as they are.
QString PermittedFileName(QString name);

} // namespace tarnwell

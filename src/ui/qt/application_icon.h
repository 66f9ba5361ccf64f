#pragma once

#include <QIcon>

namespace tarnwell::view {

/// The program's icon in all its sizes, for windows and the tray.
QIcon applicationIcon();

} // namespace tarnwell::view

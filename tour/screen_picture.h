#pragma once

#include <QImage>

namespace tarnwell::tour {

/// All windows, dialogs and menus that are up, where they are, under the title bars that a desktop would give
/// them. It knows which of its places vary.
QImage screenPicture();

} // namespace tarnwell::tour

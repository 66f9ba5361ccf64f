#pragma once

namespace tarnwell::view {

/// Gives all windows the font that they were measured in, on systems that have it; elsewhere they have the
/// desktop's. To be called between the making of the QApplication and that of the first window.
void useOwnFont();

} // namespace tarnwell::view

#pragma once

#include <QColor>

#include <cstdint>

namespace tarnwell::view {

/// A colour of the model: 0x00BBGGRR, or the number of a system colour with the high bit set, which takes the
/// colour that the desktop uses in that place.
QColor toColor(std::int32_t color);

/// Black or white, whichever is easier to read on the given colour.
QColor contrasting(const QColor& background);

} // namespace tarnwell::view

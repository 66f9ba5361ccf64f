#pragma once

#include <QList>
#include <QRect>

class QWidget;

namespace tarnwell::tour {

/// The places of a window, in its own coordinates, that look different each time: clocks, bars and speeds of
/// running work, and whatever names a temporary file.
QList<QRect> varyingPlaces(const QWidget& window);

} // namespace tarnwell::tour

#pragma once

#include <QColor>

#include <cstdint>

class QPainter;
class QRect;

namespace tarnwell::view {

/// A colour of the model: 0x00BBGGRR, or the number of a system colour with the high bit set, which takes the
/// colour that the desktop uses in that place.
QColor toColor(std::int32_t color);

/// Black or white, whichever is easier to read on the given colour.
QColor contrasting(const QColor& background);

/// The first colour with that share of the second, from 0 to 1.
QColor mixed(const QColor& ground, const QColor& ink, double share);

/// Whether a line on that ground must be lighter to be seen.
bool isDark(const QColor& ground);

/// The line around a box on that ground: darker than it, or lighter on a dark one.
QColor outlineOn(const QColor& ground);

/// A line of one pixel inside the edges of a box, at every scale of the screen: drawn by a pen, some edges
/// fall outside the box.
void drawOutline(QPainter& painter, const QRect& box, const QColor& color);

} // namespace tarnwell::view

#pragma once

#include <QtGlobal>

namespace tarnwell {

class EventPump;

namespace ui {
class PictureBox;
}

/// Draws a bar of `value` out of `maximum` with the percentage in its middle, and lets events in: this is
/// what keeps the windows alive while the tool prints much. A value above the maximum leaves the old bar as
/// it is.
void PercentBar(ui::PictureBox& picture, qint32 maximum, qint32 value, EventPump& pump);

} // namespace tarnwell

#include "status/percent_bar.h"

#include "base/text_primitives.h"
#include "platform/ports.h"
#include "ui/controls.h"

namespace tarnwell {

void PercentBar(ui::PictureBox& picture, qint32 maximum, qint32 value, EventPump& pump) {
    if (value > maximum)
        return;
    // The scale is still the one of the bar before; only afterwards the picture gets the new one.
    value = qMin(value, RoundToInt32(picture.scaleWidth));
    picture.scaleWidth = maximum;
    const qint32 percent = RoundToInt32(value / picture.scaleWidth * 100);
    picture.drawing = {.text = QString::number(percent) + '%', .filledTo = static_cast<double>(value)};
    pump.pump();
}

} // namespace tarnwell

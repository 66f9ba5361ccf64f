#include "ui/qt/window_layout.h"

#include "ui/control.h"

#include <QFontMetricsF>
#include <QWidget>

namespace tarnwell::view {

double pixelsPerTwip(const QWidget& widget, int twipsWide, int twipsHigh) {
    const QSize least = widget.minimumSizeHint();
    return std::max(double(least.width()) / twipsWide, double(least.height()) / twipsHigh);
}

double pixelsPerTwip(const QFont& font) {
    constexpr double kPixelsInTahoma8 = 136;
    const double pixels = QFontMetricsF(font).horizontalAdvance(QLatin1String("abcdefghijklmnopqrstuvwxyz"));
    return pixels / kPixelsInTahoma8 / ui::kTwipsPerPixel;
}

} // namespace tarnwell::view

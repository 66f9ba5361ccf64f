#include "ui/qt/window_layout.h"

#include "ui/control.h"

#include <QFontMetricsF>
#include <QHash>
#include <QWidget>

namespace tarnwell::view {

double pixelsPerTwip(const QWidget& widget, int twipsWide, int twipsHigh) {
    const QSize least = widget.minimumSizeHint();
    return std::max(double(least.width()) / twipsWide, double(least.height()) / twipsHigh);
}

double pixelsPerTwip(const QFont& font) {
    // Windows ask at each of their layouts, which are many while the tool prints its progress.
    static QHash<QFont, double> known;
    const auto found = known.constFind(font);
    if (found != known.constEnd())
        return *found;
    constexpr double kPixelsInTahoma8 = 136;
    const double pixels = QFontMetricsF(font).horizontalAdvance(QLatin1String("abcdefghijklmnopqrstuvwxyz"));
    return *known.insert(font, pixels / kPixelsInTahoma8 / ui::kTwipsPerPixel);
}

} // namespace tarnwell::view

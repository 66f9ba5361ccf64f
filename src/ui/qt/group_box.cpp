#include "ui/qt/group_box.h"

#include "ui/qt/colors.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace tarnwell::view {

namespace {

/// In opaque colours: Qt starts threads to draw a translucent surface of this size. On a ground that the user
/// has chosen nothing is shaded, because what stands on it is filled with the same colour.
void drawFrame(QPainter& painter, const QRect& frame, const QPalette& palette) {
    constexpr double kShade = 0.03, kOutline = 0.18, kOutlineOnDark = 0.3;
    const QColor ground = palette.color(QPalette::Window), ink = palette.color(QPalette::WindowText);
    const bool chosen = palette.isBrushSet(QPalette::Active, QPalette::Window);
    painter.fillRect(frame, chosen ? ground : mixed(ground, ink, kShade));
    drawOutline(painter, frame, mixed(ground, ink, isDark(ground) ? kOutlineOnDark : kOutline));
}

} // namespace

void GroupBox::paintEvent(QPaintEvent* event) {
    if (style()->objectName() != "fusion") {
        QGroupBox::paintEvent(event);
        return;
    }
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const auto place = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_GroupBox, &option, part, this);
    };
    QRect frame = place(QStyle::SC_GroupBoxFrame);
    frame.setTop(place(QStyle::SC_GroupBoxLabel).bottom() + 1);
    QStylePainter painter(this);
    drawFrame(painter, frame, palette());
    option.subControls = QStyle::SC_GroupBoxLabel;
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

} // namespace tarnwell::view

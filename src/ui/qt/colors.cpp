#include "ui/qt/colors.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace tarnwell::view {

namespace {

constexpr std::uint32_t kSystemColor = 0x80000000;

QPalette::ColorRole roleOfSystemColor(std::uint32_t number) {
    switch (number) {
    case 5:
        return QPalette::Base;
    case 8:
        return QPalette::Text;
    case 13:
        return QPalette::Highlight;
    case 14:
        return QPalette::HighlightedText;
    case 16:
        return QPalette::Dark;
    case 20:
        return QPalette::Light;
    case 7:
    case 18:
        return QPalette::ButtonText;
    default:
        return QPalette::Window;
    }
}

} // namespace

QColor toColor(std::int32_t color) {
    const auto bits = static_cast<std::uint32_t>(color);
    if (bits & kSystemColor)
        return QApplication::palette().color(roleOfSystemColor(bits & 0xff));
    return QColor(static_cast<int>(bits & 0xff), static_cast<int>(bits >> 8 & 0xff),
                  static_cast<int>(bits >> 16 & 0xff));
}

QColor contrasting(const QColor& background) {
    constexpr int kMiddleGray = 140;
    return qGray(background.rgb()) < kMiddleGray ? Qt::white : Qt::black;
}

QColor mixed(const QColor& ground, const QColor& ink, double share) {
    const auto mix = [&](double from, double to) { return static_cast<float>(from + (to - from) * share); };
    return QColor::fromRgbF(mix(ground.redF(), ink.redF()), mix(ground.greenF(), ink.greenF()),
                            mix(ground.blueF(), ink.blueF()));
}

bool isDark(const QColor& ground) {
    constexpr int kLightest = 80;
    return qGray(ground.rgb()) < kLightest;
}

QColor outlineOn(const QColor& ground) {
    constexpr double kThreeToOne = 0.35; // the least contrast of what is looked for, to the ground around it
    return isDark(ground) ? mixed(ground, Qt::white, kThreeToOne) : ground.darker(160);
}

void drawOutline(QPainter& painter, const QRect& box, const QColor& color) {
    const int left = box.left(), top = box.top(), width = box.width(), height = box.height();
    for (const QRect& side : {QRect(left, top, width, 1), QRect(left, box.bottom(), width, 1),
                              QRect(left, top, 1, height), QRect(box.right(), top, 1, height)})
        painter.fillRect(side, color);
}

} // namespace tarnwell::view

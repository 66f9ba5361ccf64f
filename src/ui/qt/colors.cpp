#include "ui/qt/colors.h"

#include <QApplication>
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

} // namespace tarnwell::view

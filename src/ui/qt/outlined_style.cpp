#include "ui/qt/outlined_style.h"

#include "ui/qt/colors.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <qdrawutil.h>

namespace tarnwell::view {

namespace {

const QString kFusion = QStringLiteral("fusion");

void drawRing(QPainter& painter, const QRect& around, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(around).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

} // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(kFusion) {
    setObjectName(kFusion);
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QColor ground = option->palette.color(QPalette::Window);
    if (!isDark(ground))
        return;
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
    case PE_Frame:
        drawOutline(*painter, option->rect, outlineOn(ground));
        break;
    case PE_IndicatorRadioButton:
        drawRing(*painter, option->rect, outlineOn(ground));
        break;
    default:
        break;
    }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const QColor ground = option->palette.color(QPalette::Window);
    if (control == CC_ComboBox && isDark(ground))
        drawOutline(*painter, option->rect, outlineOn(ground));
}

void keepOutlinesOn(const QColor& ground) {
    // Such a style is a change for every widget there is, and most users never see a dark window.
    if (isDark(ground) && QApplication::style()->inherits("QFusionStyle"))
        QApplication::setStyle(new OutlinedStyle);
}

} // namespace tarnwell::view

#pragma once

#include <QProxyStyle>

namespace tarnwell::view {

/// Fusion's outlines are darker than their ground, so on a dark one nobody sees where to click or to type.
/// There this style draws them lighter.
class OutlinedStyle final : public QProxyStyle {
public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

/// To be told of the grounds of windows: the program gets this style when the first one is dark, if its
/// style is Fusion.
void keepOutlinesOn(const QColor& ground);

} // namespace tarnwell::view

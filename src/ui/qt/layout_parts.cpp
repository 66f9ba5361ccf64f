#include "ui/qt/layout_parts.h"

namespace tarnwell::view {

QHBoxLayout* row(std::initializer_list<QWidget*> widgets) {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(kGap);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    return layout;
}

QHBoxLayout* equalButtons(std::initializer_list<QWidget*> buttons) {
    QHBoxLayout* layout = row(buttons);
    for (QWidget* button : buttons)
        layout->setStretchFactor(button, 1);
    return layout;
}

QHBoxLayout* heading(QWidget* label, QWidget* line) {
    QHBoxLayout* layout = row({label});
    layout->addWidget(line, 1);
    return layout;
}

QVBoxLayout* column(QWidget* frame) {
    auto* layout = new QVBoxLayout(frame);
    layout->setSpacing(kGap - 1);
    layout->setContentsMargins(kFrameMargin, kFrameMargin / 2, kFrameMargin, kFrameMargin);
    return layout;
}

void makeVertical(QWidget* line) {
    static_cast<QFrame*>(line)->setFrameShape(QFrame::VLine);
}

void takesRoomItGets(QWidget* label) {
    label->setSizePolicy(QSizePolicy::Ignored, label->sizePolicy().verticalPolicy());
}

void keepsRoomWhenHidden(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace tarnwell::view

#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QWidget>

/// What hands do, as the events that the desktop makes of it.
namespace tarnwell::tour {

/// A button of the mouse, and the keys that are held with it.
struct Press {
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers{};
};

/// Option buttons and check boxes take clicks on their left part only.
QPoint whereToClick(const QWidget& widget);

/// Presses and releases; the widget may be gone afterwards.
void sendClick(QWidget& widget, const QPoint& place, const Press& press = {});
void sendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});

/// Replaces what stands in a box.
void typeInto(QWidget& widget, const QString& text);

/// Drags files onto the middle of a widget and lets them go. Returns whether its window took them.
bool sendDrop(const QWidget& widget, const QStringList& files);

} // namespace tarnwell::tour

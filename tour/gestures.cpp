#include "tour/gestures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QUrl>
#include <QWindow>

namespace tarnwell::tour {

QPoint whereToClick(const QWidget& widget) {
    const bool button = qobject_cast<const QPushButton*>(&widget) != nullptr;
    const bool marked = qobject_cast<const QAbstractButton*>(&widget) != nullptr && !button;
    const QPoint centre = widget.rect().center();
    return marked ? QStyle::visualPos(widget.layoutDirection(), widget.rect(), {centre.y(), centre.y()})
                  : centre;
}

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& place, const Press& press) {
    const bool moves = type == QEvent::MouseMove;
    const bool down = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, place, widget.mapToGlobal(place), moves ? Qt::NoButton : press.button,
                      down ? press.button : Qt::NoButton, press.modifiers);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void sendClick(QWidget& widget, const QPoint& place, const Press& press) {
    const QPointer<QWidget> alive = &widget;
    if (widget.focusPolicy() & Qt::ClickFocus)
        widget.setFocus(Qt::MouseFocusReason);
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (alive)
            sendMouse(widget, type, place, press);
    }
}

void sendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    const QPointer<QWidget> alive = &widget;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (alive)
            QApplication::sendEvent(&widget, &event);
    }
}

void typeInto(QWidget& widget, const QString& text) {
    sendKey(widget, Qt::Key_A, Qt::ControlModifier);
    sendKey(widget, Qt::Key_Delete);
    for (const QChar letter : text)
        sendKey(widget, Qt::Key_unknown, {}, letter);
}

bool sendDrop(const QWidget& widget, const QStringList& files) {
    QMimeData dragged;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls += QUrl::fromLocalFile(file);
    dragged.setUrls(urls);
    constexpr auto kAllowed = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    const QPoint place = widget.mapTo(widget.window(), widget.rect().center());
    QWindow* const window = widget.window()->windowHandle();
    QDragEnterEvent enter(place, kAllowed, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    if (enter.isAccepted()) {
        QDropEvent drop(place, kAllowed, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window, &drop);
        return drop.isAccepted();
    }
    QDragLeaveEvent leave;
    QApplication::sendEvent(window, &leave);
    return false;
}

} // namespace tarnwell::tour

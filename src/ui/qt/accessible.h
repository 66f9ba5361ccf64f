#pragma once

#include <QAccessibleWidget>
#include <QWidget>

namespace tarnwell::view {

using MakeAccessible = QAccessibleInterface* (*)(QWidget& widget);

/// From here on assistive technology learns from what `make` returns, instead of from Qt, what a widget is.
/// To be called as soon as the widget is made: Qt keeps what it was told first, and asks at once
/// when the widget changes, though nobody listens: what is made has to be cheap.
void describeBy(QWidget& widget, MakeAccessible make);

template <class Description>
void describeAs(QWidget& widget) {
    describeBy(widget,
               [](QWidget& described) -> QAccessibleInterface* { return new Description(described); });
}

} // namespace tarnwell::view

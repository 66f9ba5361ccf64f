#include "ui/qt/announcement.h"

#include <QAccessible>
#include <QWidget>

namespace tarnwell::view {

/// Qt hands the new value of anything to the readers, to be spoken, if it is a text.
void tellOfMessage(QWidget& message, const QString& text) {
    QAccessibleValueChangeEvent event(&message, text);
    QAccessible::updateAccessibility(&event);
}

} // namespace tarnwell::view

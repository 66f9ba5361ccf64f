#include "ui/qt/announcement.h"

#include <QAccessible>
#include <QWidget>

namespace tarnwell::view {

/// A notification that comes up is read.
void tellOfMessage(QWidget& message, const QString&) {
    QAccessibleEvent event(&message, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace tarnwell::view

#include "ui/qt/accessible_frames.h"

#include "ui/qt/captions.h"

#include <QGroupBox>
#include <QMenu>

namespace tarnwell::view {

QList<QObject*> AccessibleWindow::openMenus() const {
    QList<QObject*> open;
    for (QMenu* menu : widget()->findChildren<QMenu*>()) {
        if (menu->isVisible())
            open += menu;
    }
    return open;
}

QString AccessibleWindow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? widget()->windowTitle() : QAccessibleWidget::text(kind);
}

int AccessibleWindow::childCount() const {
    return QAccessibleWidget::childCount() + static_cast<int>(openMenus().size());
}

QAccessibleInterface* AccessibleWindow::child(int index) const {
    QObject* const menu = openMenus().value(index - QAccessibleWidget::childCount());
    return menu ? QAccessible::queryAccessibleInterface(menu) : QAccessibleWidget::child(index);
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface* child) const {
    const qsizetype menu = child ? openMenus().indexOf(child->object()) : -1;
    return menu < 0 ? QAccessibleWidget::indexOfChild(child)
                    : QAccessibleWidget::childCount() + static_cast<int>(menu);
}

QString AccessibleGroup::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? readCaption(static_cast<QGroupBox*>(widget())->title())
                                     : QAccessibleWidget::text(kind);
}

} // namespace tarnwell::view

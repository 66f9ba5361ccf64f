#include "ui/qt/accessible_option.h"

#include "ui/qt/captions.h"

#include <QAbstractButton>

namespace tarnwell::view {

QAbstractButton& AccessibleOption::button() const {
    return static_cast<QAbstractButton&>(*widget());
}

QString AccessibleOption::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Name:
        return readCaption(button().text());
    case QAccessible::Accelerator:
        return button().shortcut().toString(QKeySequence::NativeText);
    default:
        return QAccessibleWidget::text(kind);
    }
}

QAccessible::State AccessibleOption::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button().isChecked();
    state.pressed = button().isDown();
    return state;
}

QStringList AccessibleOption::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (button().isEnabled())
        names.prepend(toggleAction());
    return names;
}

void AccessibleOption::doAction(const QString& name) {
    if (name != toggleAction())
        QAccessibleWidget::doAction(name);
    else if (button().isEnabled())
        button().toggle();
}

} // namespace tarnwell::view

#pragma once

#include "ui/qt/accessible.h"

namespace tarnwell::view {

// What stands around and between the controls. Qt gives whatever is in a group the name of that group, and
// says that the group is its label; readers would say it again and again.

using Relations = QList<QPair<QAccessibleInterface*, QAccessible::Relation>>;

/// A window and, while they are open, its menus, which Qt shows to nobody but those who open them by keys. It
/// keeps its name while it is minimised.
class AccessibleWindow final : public QAccessibleWidget {
public:
    explicit AccessibleWindow(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QObject*> openMenus() const;
};

/// A frame with a title, which is its name.
class AccessibleGroup final : public QAccessibleWidget {
public:
    explicit AccessibleGroup(QWidget& box) : QAccessibleWidget(&box, QAccessible::Grouping) {}

    QString text(QAccessible::Text kind) const override;
    Relations relations(QAccessible::Relation) const override { return {}; }
};

/// What has nothing to say.
class AccessiblePane : public QAccessibleWidget {
public:
    explicit AccessiblePane(QWidget& pane, QAccessible::Role role = QAccessible::Client)
        : QAccessibleWidget(&pane, role) {}

    QString text(QAccessible::Text) const override { return {}; }
    Relations relations(QAccessible::Relation) const override { return {}; }
};

class AccessibleLine final : public AccessiblePane {
public:
    explicit AccessibleLine(QWidget& line) : AccessiblePane(line, QAccessible::Separator) {}
};

} // namespace tarnwell::view

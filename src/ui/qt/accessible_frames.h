#pragma once

#include "ui/qt/accessible.h"

namespace tarnwell::view {

// What stands around and between the controls. Qt gives whatever is in a group the name of that group, and
// says that the group is its label; readers would say it again and again.

using Relations = QList<QPair<QAccessibleInterface*, QAccessible::Relation>>;

class AccessibleWindow final : public QAccessibleWidget {
public:
    explicit AccessibleWindow(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}
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

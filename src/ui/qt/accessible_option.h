#pragma once

#include "ui/qt/accessible_frames.h"

class QAbstractButton;

namespace tarnwell::view {

/// An option button. Qt takes one whose group is kept by the program for a check box.
class AccessibleOption final : public QAccessibleWidget {
public:
    explicit AccessibleOption(QWidget& option) : QAccessibleWidget(&option, QAccessible::RadioButton) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    Relations relations(QAccessible::Relation) const override { return {}; }
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QAbstractButton& button() const;
};

} // namespace tarnwell::view

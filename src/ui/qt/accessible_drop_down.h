#pragma once

#include "ui/qt/accessible_frames.h"

class QAbstractItemView;
class QComboBox;

namespace tarnwell::view {

/// A drop-down list: what it is for is its name, the chosen entry its value. Qt speaks the entry in the
/// name's place on Linux. Readers there know no values that are texts, so the entry is also a text, all of it
/// selected. What is selected in the list itself, open or not, is chosen.
class AccessibleDropDown final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit AccessibleDropDown(QWidget& comboBox);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    Relations relations(QAccessible::Relation match) const override;
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override { return 1; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    QComboBox& comboBox() const;
    QAbstractItemView& list() const;

    mutable bool listIsInStep_ = false;
};

} // namespace tarnwell::view

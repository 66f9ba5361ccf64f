#include "ui/qt/accessible_drop_down.h"

#include <QAbstractItemView>
#include <QComboBox>

#include <utility>

namespace tarnwell::view {

namespace {

void showChoiceInList(QComboBox& comboBox) {
    comboBox.view()->setCurrentIndex(
        comboBox.model()->index(comboBox.currentIndex(), comboBox.modelColumn()));
}

/// The mouse and the keys move the list's own place with the selection, others select alone.
void chooseSelected(QComboBox& comboBox) {
    const QAbstractItemView& list = *comboBox.view();
    const QModelIndex selected = list.selectionModel()->selectedIndexes().value(0);
    if (!selected.isValid() || selected.row() == list.currentIndex().row())
        return;
    comboBox.hidePopup();
    comboBox.setCurrentIndex(selected.row());
    showChoiceInList(comboBox);
}

void tellOfTexts(QComboBox& comboBox) {
    QObject::connect(&comboBox, &QComboBox::currentTextChanged, &comboBox,
                     [&comboBox, before = comboBox.currentText()](const QString& now) mutable {
                         QAccessibleTextUpdateEvent event(&comboBox, 0, before, now);
                         QAccessible::updateAccessibility(&event);
                         before = now;
                     });
}

void keepInStep(QComboBox& comboBox) {
    showChoiceInList(comboBox);
    QObject::connect(&comboBox, &QComboBox::currentIndexChanged, comboBox.view(),
                     [&comboBox] { showChoiceInList(comboBox); });
    QObject::connect(
        comboBox.view()->selectionModel(), &QItemSelectionModel::selectionChanged, comboBox.view(),
        [&comboBox] { chooseSelected(comboBox); }, Qt::QueuedConnection);
}

} // namespace

AccessibleDropDown::AccessibleDropDown(QWidget& comboBox)
    : QAccessibleWidget(&comboBox, QAccessible::ComboBox) {
    tellOfTexts(this->comboBox());
}

QComboBox& AccessibleDropDown::comboBox() const {
    return static_cast<QComboBox&>(*widget());
}

/// Made when it drops down or somebody asks for it, whichever comes first.
QAbstractItemView& AccessibleDropDown::list() const {
    if (!std::exchange(listIsInStep_, true))
        keepInStep(comboBox());
    return *comboBox().view();
}

QString AccessibleDropDown::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? comboBox().currentText() : QAccessibleWidget::text(kind);
}

QAccessible::State AccessibleDropDown::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list().isVisible();
    return state;
}

Relations AccessibleDropDown::relations(QAccessible::Relation match) const {
    Relations all = QAccessibleWidget::relations(match);
    all.removeIf([](const auto& relation) { return relation.first->role() == QAccessible::Grouping; });
    return all;
}

QAccessibleInterface* AccessibleDropDown::child(int index) const {
    return index == 0 ? QAccessible::queryAccessibleInterface(&list()) : nullptr;
}

int AccessibleDropDown::indexOfChild(const QAccessibleInterface* child) const {
    return child && child->object() == &list() ? 0 : -1;
}

QStringList AccessibleDropDown::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (comboBox().isEnabled())
        names.prepend(showMenuAction());
    return names;
}

void AccessibleDropDown::doAction(const QString& name) {
    if (name != showMenuAction())
        QAccessibleWidget::doAction(name);
    else if (list().isVisible())
        comboBox().hidePopup();
    else if (comboBox().isEnabled())
        comboBox().showPopup();
}

void* AccessibleDropDown::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : QAccessibleWidget::interface_cast(type);
}

void AccessibleDropDown::selection(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
}

QString AccessibleDropDown::text(int start, int end) const {
    return comboBox().currentText().mid(start, end < 0 ? -1 : end - start);
}

int AccessibleDropDown::characterCount() const {
    return static_cast<int>(comboBox().currentText().size());
}

QString AccessibleDropDown::attributes(int, int* start, int* end) const {
    selection(0, start, end);
    return {};
}

} // namespace tarnwell::view

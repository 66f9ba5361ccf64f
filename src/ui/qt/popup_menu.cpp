#include "ui/qt/popup_menu.h"

#include "ui/form.h"
#include "ui/qt/captions.h"
#include "ui/user_actions.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

namespace tarnwell::view {

namespace {

class StayOpenMenu final : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (!toggle(actionAt(event->position().toPoint())))
            QMenu::mouseReleaseEvent(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool presses =
            event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!presses || !toggle(activeAction()))
            QMenu::keyPressEvent(event);
    }

private:
    static bool toggle(QAction* action) {
        if (!action || !action->isEnabled() || !action->isCheckable())
            return false;
        action->trigger();
        return true;
    }
};

void bindEntry(Binding& binding, ui::MenuEntry& entry, QMenu& menu) {
    QAction* action = menu.addAction(QString());
    action->setObjectName(entry.name);
    action->setCheckable(entry.checkable);
    binding.follow(entry.caption.changed, *action, [&entry, action] {
        action->setSeparator(entry.separator());
        action->setText(entry.separator() ? QString() : escapedCaption(entry.caption));
    });
    binding.follow(entry.enabled.changed, *action, [&entry, action] { action->setEnabled(entry.enabled); });
    binding.follow(entry.visible.changed, *action, [&entry, action] { action->setVisible(entry.visible); });
    const auto showTick = [&entry, action] { action->setChecked(entry.checked); };
    binding.follow(entry.checked.changed, *action, showTick);
    QObject::connect(action, &QAction::triggered, action, [&binding, &entry, showTick] {
        if (binding.showing())
            return;
        {
            const Binding::Showing guard(binding);
            showTick();
        }
        ui::click(entry);
    });
}

} // namespace

QMenu& menuOf(Binding& binding, ui::PopupMenu& model, QWidget& window) {
    if (auto* made = window.findChild<QMenu*>(model.name, Qt::FindDirectChildrenOnly))
        return *made;
    auto* menu = new StayOpenMenu(&window);
    menu->setObjectName(model.name);
    menu->setAccessibleName(model.caption);
    for (ui::MenuEntry* entry : model.entries())
        bindEntry(binding, *entry, *menu);
    binding.listen(model.closed, *menu, [menu] { menu->hide(); });
    return *menu;
}

void popUpBelow(QMenu& menu, const QWidget& anchor) {
    if (menu.isVisible())
        return;
    const QRect place(anchor.mapToGlobal(QPoint()), anchor.size());
    const int left = anchor.isRightToLeft() ? place.right() + 1 - menu.sizeHint().width() : place.left();
    menu.popup({left, place.bottom() + 1});
}

void bindMenu(Binding& binding, ui::PopupMenu& model, QWidget& window) {
    binding.listen(model.poppedUpAtPointer, window, [&] {
        QMenu& menu = menuOf(binding, model, window);
        menu.popup(QCursor::pos());
        // Without this, a menu over another program's windows would not close when the user turns away from
        // it.
        menu.activateWindow();
    });
}

} // namespace tarnwell::view

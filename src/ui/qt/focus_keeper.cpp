#include "ui/qt/focus_keeper.h"

#include <QFocusEvent>

namespace tarnwell::view {

namespace {

/// A window that becomes active puts the focus where it was last, and a menu that closes does, too.
bool chosenByUser(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

} // namespace

FocusKeeper::FocusKeeper(const Binding& binding, QWidget& window)
    : QObject(&window), binding_(binding), window_(window) {
    for (QWidget* const widget : window.findChildren<QWidget*>())
        widget->installEventFilter(this);
}

bool FocusKeeper::eventFilter(QObject* watched, QEvent* event) {
    auto* const widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn && !binding_.showing() &&
        chosenByUser(static_cast<const QFocusEvent&>(*event))) {
        chosen_ = widget;
    } else if (chosen_ && (event->type() == QEvent::EnabledChange || event->type() == QEvent::Show) &&
               (widget == chosen_ || widget->isAncestorOf(chosen_))) {
        // Children hear of the change after their parent.
        QMetaObject::invokeMethod(
            this, [this] { giveBack(); }, Qt::QueuedConnection);
    }
    return false;
}

void FocusKeeper::giveBack() {
    if (chosen_ && chosen_->isEnabled() && chosen_->isVisible() && window_.focusWidget() != chosen_) {
        const QPointer<QWidget> chosen = chosen_;
        chosen->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace tarnwell::view

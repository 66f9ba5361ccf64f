#include "ui/qt/announcement.h"

#include "ui/qt/accessible.h"

#include <QTimer>

namespace tarnwell::view {

namespace {

/// Named by its words.
class AccessibleMessage final : public QAccessibleWidget {
public:
    explicit AccessibleMessage(QWidget& message) : QAccessibleWidget(&message, QAccessible::Notification) {}

    /// Shown to those who listen.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = false;
        return state;
    }
};

} // namespace

void announce(QWidget& window, const QString& text) {
    if (!QAccessible::isActive())
        return;
    // Readers hear of a message first and ask for its words later, so each message is one of its own.
    constexpr int kTimeToReadMs = 10'000;
    auto* message = new QWidget(&window);
    describeAs<AccessibleMessage>(*message);
    message->setAccessibleName(text);
    tellOfMessage(*message, text);
    QTimer::singleShot(kTimeToReadMs, message, &QObject::deleteLater);
}

} // namespace tarnwell::view

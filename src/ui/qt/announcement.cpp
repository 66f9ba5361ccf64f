#include "ui/qt/announcement.h"

#include "ui/qt/accessible.h"

#include <QDeadlineTimer>

namespace tarnwell::view {

namespace {

/// Readers hear of a message first and ask for its words later, so these stay for a while.
class Message final : public QWidget {
public:
    explicit Message(QWidget& window);

    bool isUp() const { return !end_.hasExpired(); }
    void comeUp(const QString& text) {
        constexpr int kTimeToReadMs = 10'000;
        end_.setRemainingTime(kTimeToReadMs);
        setAccessibleName(text);
        tellOfMessage(*this, text);
    }

private:
    QDeadlineTimer end_{0};
};

/// Named by its words, and shown to those who listen.
class AccessibleMessage final : public QAccessibleWidget {
public:
    explicit AccessibleMessage(QWidget& message) : QAccessibleWidget(&message, QAccessible::Notification) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = !static_cast<Message*>(widget())->isUp();
        return state;
    }
};

Message::Message(QWidget& window) : QWidget(&window) {
    describeAs<AccessibleMessage>(*this);
}

Message& freeMessage(QWidget& window) {
    for (QObject* child : window.children()) {
        if (auto* message = dynamic_cast<Message*>(child); message && !message->isUp())
            return *message;
    }
    return *new Message(window);
}

} // namespace

void announce(QWidget& window, const QString& text) {
    if (QAccessible::isActive())
        freeMessage(window).comeUp(text);
}

} // namespace tarnwell::view

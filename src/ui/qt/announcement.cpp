#include "ui/qt/announcement.h"

#include "ui/qt/accessible.h"

#include <QBasicTimer>
#include <QDeadlineTimer>

namespace tarnwell::view {

namespace {

/// A window that opens or closes has so much to tell that readers drop what comes with it, so a message waits
/// until that is over. Then it stays for a while: readers hear of it first and ask for its words later.
class Message final : public QWidget {
public:
    explicit Message(QWidget& window);

    bool isFree() const { return !wait_.isActive() && !isUp(); }
    bool isUp() const { return !end_.hasExpired(); }
    void comeUpSoon(const QString& text) {
        constexpr int kUntilCalmMs = 700;
        text_ = text;
        wait_.start(kUntilCalmMs, Qt::PreciseTimer, this); // they are heard in their order
    }

protected:
    void timerEvent(QTimerEvent*) override {
        constexpr int kTimeToReadMs = 10'000;
        wait_.stop();
        end_.setRemainingTime(kTimeToReadMs);
        setAccessibleName(text_);
        tellOfMessage(*this, text_);
    }

private:
    QString text_;
    QBasicTimer wait_;
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
        if (auto* message = dynamic_cast<Message*>(child); message && message->isFree())
            return *message;
    }
    return *new Message(window);
}

} // namespace

void announce(QWidget& window, const QString& text) {
    if (QAccessible::isActive())
        freeMessage(window).comeUpSoon(text);
}

} // namespace tarnwell::view

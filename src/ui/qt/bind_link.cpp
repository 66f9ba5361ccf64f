#include "ui/qt/accessible.h"
#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/user_actions.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace tarnwell::view {

namespace {

/// Looks and feels as a link does in a browser, by mouse and by keyboard.
class Link final : public QLabel {
public:
    Link(ui::Label& link, QWidget* parent) : QLabel(parent), link_(link) {
        setTextFormat(Qt::PlainText);
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
        setForegroundRole(QPalette::Link);
        setMargin(kRoomForFocusRect);
        QFont underlined;
        underlined.setUnderline(true);
        setFont(underlined);
    }

    void follow() { ui::click(link_); }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            follow();
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
            follow();
        else
            QLabel::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (!hasFocus())
            return;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }

private:
    static constexpr int kRoomForFocusRect = 2;
    ui::Label& link_;
};

/// Qt takes it for a text that does nothing.
class AccessibleLink final : public QAccessibleWidget {
public:
    explicit AccessibleLink(QWidget& link) : QAccessibleWidget(&link, QAccessible::Link) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? link().text() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            link().follow();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    Link& link() const { return static_cast<Link&>(*widget()); }
};

} // namespace

QWidget* bindLink(Binding& binding, ui::Label& link, QWidget* parent) {
    auto* widget = new Link(link, parent);
    describeAs<AccessibleLink>(*widget);
    binding.follow(link.caption.changed, *widget,
                   [&link, widget] { widget->setText(shownCaption(link.caption)); });
    return widget;
}

} // namespace tarnwell::view

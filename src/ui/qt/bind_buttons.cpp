#include "ui/qt/accessible_option.h"
#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/qt/event_watcher.h"
#include "ui/user_actions.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

namespace tarnwell::view {

namespace {

/// A button that can be as narrow as its text, while styles give short texts a wide one; it always leaves
/// some room beside the text.
class PushButton final : public QPushButton {
public:
    explicit PushButton(QWidget* parent) : QPushButton(parent) {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        // Dots open a dialog for the field beside them, which needs the room.
        if (text() == QLatin1String("..."))
            return minimumSizeHint();
        return QPushButton::sizeHint().expandedTo(minimumSizeHint());
    }

    QSize minimumSizeHint() const override {
        constexpr int kRoomBesideText = 8;
        const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
        return {textWidth + 2 * kRoomBesideText, QPushButton::sizeHint().height()};
    }

protected:
    /// A double click counts once: its second half would start the same work again while the first is at it.
    /// The second press has come by now, and is taken back before it becomes a click.
    void mouseDoubleClickEvent(QMouseEvent*) override { setDown(false); }
};

/// The model decides what a click means, and may take hours for it; the widget shows nothing by itself.
template <class Button>
class ShownByModel final : public Button {
public:
    using Button::Button;

protected:
    void nextCheckState() override {}
};

/// Clicks, and what assistive technology does in their place: it ticks a box or chooses an option without
/// one.
template <class Show, class Act>
void onClick(Binding& binding, QAbstractButton& widget, Show show, Act act) {
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, act);
    QObject::connect(&widget, &QAbstractButton::toggled, &widget, [&binding, show, act] {
        if (binding.showing())
            return;
        {
            const Binding::Showing guard(binding);
            show();
        }
        act();
    });
}

template <class Captioned>
void followCaption(Binding& binding, Captioned& control, QAbstractButton& widget) {
    binding.follow(control.caption.changed, widget, [&] { widget.setText(escapedCaption(control.caption)); });
}

ui::OptionButton* neighbour(ui::OptionButton& option, int step) {
    std::vector<ui::OptionButton*> group;
    std::ptrdiff_t here = 0;
    for (ui::Control* control : option.form().controls()) {
        if (control->kind != ui::Kind::OptionButton || control->container != option.container)
            continue;
        if (control == &option)
            here = std::ssize(group);
        if (control->usable())
            group.push_back(static_cast<ui::OptionButton*>(control));
    }
    if (group.empty())
        return nullptr;
    return group[static_cast<std::size_t>((here + step + std::ssize(group)) % std::ssize(group))];
}

int stepOf(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Down:
    case Qt::Key_Right:
        return 1;
    default:
        return 0;
    }
}

/// Arrow keys choose among the options of a group, which Qt does only for groups that exclude each other by
/// themselves.
void chooseByArrows(ui::OptionButton& option, QRadioButton& radio) {
    new EventWatcher(radio, [&option, &radio](QEvent& event) {
        if (event.type() != QEvent::KeyPress)
            return false;
        const int step = stepOf(static_cast<QKeyEvent&>(event).key());
        ui::OptionButton* next = step ? neighbour(option, step) : nullptr;
        if (!next)
            return false;
        if (auto* widget = radio.parentWidget()->findChild<QWidget*>(next->name, Qt::FindDirectChildrenOnly))
            widget->setFocus(Qt::TabFocusReason);
        ui::click(*next);
        return true;
    });
}

} // namespace

QWidget* bindButton(Binding& binding, ui::Button& button, QWidget* parent) {
    auto* widget = new PushButton(parent);
    followCaption(binding, button, *widget);
    QObject::connect(widget, &QPushButton::clicked, widget, [&button] { ui::click(button); });
    // Enter presses the button that has the focus, without the heavy border that Qt's own default buttons
    // wear.
    new EventWatcher(*widget, [widget](QEvent& event) {
        if (event.type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent&>(event).key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (enter)
            widget->click();
        return enter;
    });
    // A width is given to buttons whose caption and neighbours change; the others are as wide as the layout
    // likes.
    if (button.width) {
        const auto show = [&binding, &button, widget] {
            widget->setFixedWidth(std::max(binding.scale().pixels(button.width), widget->sizeHint().width()));
        };
        binding.follow(button.width.changed, *widget, show);
        binding.listen(button.caption.changed, *widget, show);
        binding.listen(binding.scaleChanged, *widget, show);
    }
    return widget;
}

QWidget* bindOptionButton(Binding& binding, ui::OptionButton& option, QWidget* parent) {
    auto* widget = new ShownByModel<QRadioButton>(parent);
    describeAs<AccessibleOption>(*widget);
    widget->setAutoExclusive(false);
    followCaption(binding, option, *widget);
    const auto show = [&option, widget] { widget->setChecked(option.value); };
    binding.follow(option.value.changed, *widget, show);
    onClick(binding, *widget, show, [&option] { ui::click(option); });
    chooseByArrows(option, *widget);
    return widget;
}

QWidget* bindCheckBox(Binding& binding, ui::CheckBox& box, QWidget* parent) {
    auto* widget = new ShownByModel<QCheckBox>(parent);
    followCaption(binding, box, *widget);
    const auto show = [&box, widget] {
        constexpr int kGreyed = 2;
        widget->setTristate(box.value == kGreyed);
        widget->setCheckState(box.value == kGreyed ? Qt::PartiallyChecked
                              : box.value          ? Qt::Checked
                                                   : Qt::Unchecked);
    };
    binding.follow(box.value.changed, *widget, show);
    onClick(binding, *widget, show, [&box] { ui::click(box); });
    return widget;
}

} // namespace tarnwell::view

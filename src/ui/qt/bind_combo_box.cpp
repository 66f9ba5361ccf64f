#include "ui/qt/accessible_drop_down.h"
#include "ui/qt/bind_controls.h"
#include "ui/user_actions.h"

#include <QComboBox>
#include <QStyleOptionComboBox>

namespace tarnwell::view {

namespace {

/// As narrow as a few characters or its hint: the entries are read from disks, and must not widen the window.
/// The toolkit's own policy for that makes the list that drops down beforehand.
class DropDown final : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override {
        constexpr int kCharacters = 9, kAroundText = 2;
        const QFontMetrics metrics = fontMetrics();
        const QSize text(std::max(kCharacters * metrics.horizontalAdvance(u'X'),
                                  metrics.boundingRect(placeholderText()).width()),
                         std::max(metrics.height(), iconSize().height()) + kAroundText);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
    }
};

} // namespace

QWidget* bindComboBox(Binding& binding, ui::ComboBox& list, QWidget* parent) {
    auto* combo = new DropDown(parent);
    describeAs<AccessibleDropDown>(*combo);
    const auto showChoice = [&list, combo] { combo->setCurrentIndex(list.listIndex); };
    binding.follow(list.itemsChanged, *combo, [&list, combo, showChoice] {
        // Entries come one by one and go all at once.
        if (combo->count() > list.listCount())
            combo->clear();
        for (int i = combo->count(); i < list.listCount(); ++i)
            combo->addItem(list.items().at(i));
        showChoice();
    });
    binding.listen(list.listIndex.changed, *combo, showChoice);
    const auto takeChoice = [&binding, &list, showChoice](int index) {
        if (binding.showing() || ui::choose(list, index))
            return;
        const Binding::Showing guard(binding);
        showChoice();
    };
    QObject::connect(combo, &QComboBox::activated, combo, takeChoice);
    // Assistive technology chooses without activating. A choice by hand has reached the model by the time
    // that the second look is taken.
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo, [&binding, &list, combo, takeChoice] {
        if (binding.showing())
            return;
        const auto lookAgain = [&list, combo, takeChoice] {
            if (combo->currentIndex() != list.listIndex)
                takeChoice(combo->currentIndex());
        };
        QMetaObject::invokeMethod(combo, lookAgain, Qt::QueuedConnection);
    });
    return combo;
}

} // namespace tarnwell::view

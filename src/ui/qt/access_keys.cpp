#include "ui/qt/access_keys.h"

#include "ui/qt/captions.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>

namespace tarnwell::view {

namespace {

QString marked(const QString& caption, char letter) {
    QString text = escapedCaption(caption);
    const qsizetype at = text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    return at < 0 ? text : text.insert(at, u'&');
}

template <class Widget, class Control>
void mark(ControlBinder& controls, Control& control, char letter) {
    auto* widget = static_cast<Widget*>(controls.widget(control));
    controls.binding().follow(control.caption.changed, *widget, [&control, widget, letter] {
        widget->setText(marked(control.caption, letter));
    });
}

void markTabs(ControlBinder& controls, const ui::TabStrip& tabs, const char* letters) {
    auto* bar = static_cast<QTabBar*>(controls.widget(tabs));
    for (int i = 0; i < tabs.captions.size(); ++i)
        bar->setTabText(i, marked(tabs.captions[i], letters[i]));
}

} // namespace

void giveAccessKeys(ControlBinder& controls, const std::vector<AccessKey>& keys) {
    for (const auto& [control, letters] : keys) {
        switch (control.kind) {
        case ui::Kind::Button:
            mark<QAbstractButton>(controls, static_cast<ui::Button&>(control), *letters);
            break;
        case ui::Kind::OptionButton:
            mark<QAbstractButton>(controls, static_cast<ui::OptionButton&>(control), *letters);
            break;
        case ui::Kind::CheckBox:
            mark<QAbstractButton>(controls, static_cast<ui::CheckBox&>(control), *letters);
            break;
        case ui::Kind::Label:
            mark<QLabel>(controls, static_cast<ui::Label&>(control), *letters);
            break;
        default:
            markTabs(controls, static_cast<ui::TabStrip&>(control), letters);
        }
    }
}

} // namespace tarnwell::view

#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/user_actions.h"

#include <QTabBar>

namespace tarnwell::view {

QWidget* bindTabStrip(Binding& binding, ui::TabStrip& tabs, QWidget* parent) {
    auto* bar = new QTabBar(parent);
    bar->setExpanding(false);
    bar->setDrawBase(false); // the pages have a frame of their own
    const auto show = [&tabs, bar] { bar->setCurrentIndex(tabs.selectedTab); };
    {
        const Binding::Showing guard(binding);
        for (const QString& caption : tabs.captions)
            bar->addTab(escapedCaption(caption));
    }
    binding.follow(tabs.selectedTab.changed, *bar, show);
    QObject::connect(bar, &QTabBar::currentChanged, bar, [&binding, &tabs, show](int index) {
        if (binding.showing() || ui::selectTab(tabs, index))
            return;
        const Binding::Showing guard(binding);
        show();
    });
    return bar;
}

} // namespace tarnwell::view

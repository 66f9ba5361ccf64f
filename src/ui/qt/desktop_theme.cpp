#include "ui/qt/desktop_theme.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>

namespace tarnwell::view {

namespace {

/// The desktop's colours as the widget's own, or those of the window that it is in would come before them.
QPalette ownThemeColors(const QWidget& widget) {
    const QPalette desktop = QApplication::palette(&widget);
    QPalette own;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                                QPalette::Button, QPalette::ButtonText})
            own.setBrush(group, role, desktop.brush(group, role));
    }
    return own;
}

} // namespace

bool drawnByTheme(const QWidget& widget) {
    if (!widget.style()->objectName().startsWith("windows", Qt::CaseInsensitive))
        return false;
    return qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QTabBar*>(&widget) || qobject_cast<const QHeaderView*>(&widget);
}

void keepThemeColors(Binding& binding, QWidget& widget) {
    binding.follow(binding.themeChanged, widget, [&widget] { widget.setPalette(ownThemeColors(widget)); });
}

} // namespace tarnwell::view

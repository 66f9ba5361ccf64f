#include "platform/qt/qt_tray.h"

#include "platform/native.h"

#include <QGuiApplication>

namespace tarnwell {

void QtTray::look() {
    wait_ = native::whenTrayAppears([this] { makeIcon(); });
}

void QtTray::makeIcon() {
    icon_ = std::make_unique<QSystemTrayIcon>(picture_);
    QObject::connect(icon_.get(), &QSystemTrayIcon::activated,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
    if (added_)
        showIcon();
}

void QtTray::showIcon() {
    icon_->setToolTip(tip_);
    icon_->show();
    if (makeMenu && available() && drawnByPanel()) {
        icon_->setContextMenu(makeMenu());
    }
}

bool QtTray::available() const {
    return icon_ && QSystemTrayIcon::isSystemTrayAvailable();
}

void QtTray::add(const QString& tip) {
    tip_ = tip;
    added_ = true;
    if (icon_)
        showIcon();
}

void QtTray::setTip(const QString& tip) {
    tip_ = tip;
    if (icon_)
        icon_->setToolTip(tip);
}

void QtTray::showBalloon(const QString& title, const QString& text) {
    // For such a panel Qt makes the balloon the icon's tip as well, in the place of the progress.
    if (available() && !(drawnByPanel() && native::showNotification(title, text))) {
        icon_->showMessage(title, text, QSystemTrayIcon::Information);
    }
}

void QtTray::remove() {
    added_ = false;
    if (icon_)
        icon_->hide();
}

bool QtTray::drawnByPanel() const {
    const bool placeless = !icon_ || icon_->geometry().isNull();
    return placeless && QGuiApplication::platformName() != QLatin1String("windows");
}

void QtTray::activated(QSystemTrayIcon::ActivationReason reason) {
    // A panel that draws the icon itself tells no clicks, only that the user wants the program, by whatever
    // gesture that desktop has for it.
    const bool panelWantsProgram = reason == QSystemTrayIcon::Trigger && drawnByPanel();
    if (reason == QSystemTrayIcon::DoubleClick || panelWantsProgram) {
        if (doubleClicked) {
            doubleClicked();
        }
    } else if (reason == QSystemTrayIcon::Context && rightClicked) {
        rightClicked();
    }
}

} // namespace tarnwell

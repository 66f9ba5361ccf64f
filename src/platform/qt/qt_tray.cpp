#include "platform/qt/qt_tray.h"

namespace tarnwell {

QtTray::QtTray(const QIcon& icon) : icon_(icon) {
    QObject::connect(&icon_, &QSystemTrayIcon::activated,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
}

bool QtTray::available() const {
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void QtTray::add(const QString& tip) {
    icon_.setToolTip(tip);
    icon_.show(); // also without a tray: the desktop's panel may come up after this program
}

void QtTray::setTip(const QString& tip) {
    icon_.setToolTip(tip);
}

void QtTray::showBalloon(const QString& title, const QString& text) {
    if (available()) {
        icon_.showMessage(title, text, QSystemTrayIcon::Information);
    }
}

void QtTray::remove() {
    icon_.hide();
}

void QtTray::activated(QSystemTrayIcon::ActivationReason reason) {
    // A status notifier host draws the icon itself: it tells no place of it and no clicks, only that the user
    // wants the program, by whatever gesture that desktop has for it.
    const bool hostWantsProgram = reason == QSystemTrayIcon::Trigger && icon_.geometry().isNull();
    if (reason == QSystemTrayIcon::DoubleClick || hostWantsProgram) {
        if (doubleClicked) {
            doubleClicked();
        }
    } else if (reason == QSystemTrayIcon::Context && rightClicked) {
        rightClicked();
    }
}

} // namespace tarnwell

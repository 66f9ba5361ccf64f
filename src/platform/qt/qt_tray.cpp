#include "platform/qt/qt_tray.h"

#include "platform/native.h"

#include <QGuiApplication>

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
    if (makeMenu && available() && drawnByPanel()) {
        icon_.setContextMenu(makeMenu());
    }
}

void QtTray::setTip(const QString& tip) {
    icon_.setToolTip(tip);
}

void QtTray::showBalloon(const QString& title, const QString& text) {
    // For such a panel Qt makes the balloon the icon's tip as well, in the place of the progress.
    if (available() && !(drawnByPanel() && native::showNotification(title, text))) {
        icon_.showMessage(title, text, QSystemTrayIcon::Information);
    }
}

void QtTray::remove() {
    icon_.hide();
}

bool QtTray::drawnByPanel() const {
    return icon_.geometry().isNull() && QGuiApplication::platformName() != QLatin1String("windows");
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

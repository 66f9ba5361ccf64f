#pragma once

#include "platform/ports.h"

#include <QSystemTrayIcon>

namespace tarnwell {

/// The icon in the desktop's tray. `doubleClicked` and `rightClicked` are called out of an event of Qt and
/// must not throw; the program attaches callbacks that catch what its handlers throw.
class QtTray : public Tray {
public:
    explicit QtTray(const QIcon& icon);

    bool available() const override;
    void add(const QString& tip) override;
    void setTip(const QString& tip) override;
    void showBalloon(const QString& title, const QString& text) override;
    void remove() override;

    /// What the desktop reports about the icon.
    void activated(QSystemTrayIcon::ActivationReason reason);

private:
    QSystemTrayIcon icon_;
};

} // namespace tarnwell

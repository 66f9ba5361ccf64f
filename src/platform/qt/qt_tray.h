#pragma once

#include "platform/ports.h"

#include <QSystemTrayIcon>

#include <memory>

namespace tarnwell {

/// The icon in the desktop's tray. `doubleClicked` and `rightClicked` are called out of an event of Qt and
/// must not throw; the program attaches callbacks that catch what its handlers throw.
class QtTray : public Tray {
public:
    explicit QtTray(const QIcon& picture) : picture_(picture) {}

    /// Looks for a tray from here on, and asks the desktop what it has: that takes a while, and a start
    /// should not wait for it.
    void look();

    bool available() const override;
    void add(const QString& tip) override;
    void setTip(const QString& tip) override;
    void showBalloon(const QString& title, const QString& text) override;
    void remove() override;

    /// Makes the menu of a right click for panels that draw the icon and its menu themselves and pass no
    /// right click on. Called when the icon comes up in such a panel.
    std::function<QMenu*()> makeMenu;

    /// What the desktop reports about the icon.
    void activated(QSystemTrayIcon::ActivationReason reason);

private:
    /// Such a panel (a status notifier host) tells no place of the icon.
    bool drawnByPanel() const;
    void makeIcon();
    void showIcon();

    QIcon picture_;
    QString tip_;
    bool added_ = false;
    std::unique_ptr<QSystemTrayIcon> icon_; ///< null while there is no tray: Qt looks for panels only once
    std::unique_ptr<QObject> wait_;
};

} // namespace tarnwell

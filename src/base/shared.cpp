#include "base/shared.h"

#include "base/mod_tray_icon.h"

namespace tarnwell {

Shared::Shared(const Ports& outside) : ports(outside), config(outside.folders) {}

void Shared::message(const QString& text, MessageIcon icon) {
    ports.dialogs.message(text, icon, title);
}

void Shared::balloon(const QString& text) {
    if (config.number("BalloonTips") == 0)
        TrayBalloon(ports.tray, text);
}

} // namespace tarnwell

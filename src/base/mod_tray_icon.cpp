#include "base/mod_tray_icon.h"

#include "platform/ports.h"

namespace tarnwell {

namespace {

constexpr qsizetype kTipCharacters = 127;
constexpr qsizetype kBalloonCharacters = 255;
const char kBalloonTitle[] = "Tarnwell GUI";

} // namespace

void TrayAdd(Tray& tray, const QString& tip) {
    tray.add(tip.left(kTipCharacters));
}

void TrayTip(Tray& tray, const QString& tip) {
    tray.setTip(tip.left(kTipCharacters));
}

void TrayBalloon(Tray& tray, const QString& text) {
    tray.showBalloon(kBalloonTitle, text.left(kBalloonCharacters));
}

void TrayRemove(Tray& tray) {
    tray.remove();
}

} // namespace tarnwell

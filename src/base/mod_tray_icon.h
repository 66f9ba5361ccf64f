#pragma once

#include <QString>

namespace tarnwell {

class Tray;

/// The icon in the system tray. Longer texts than the tray has room for are cut: 127 characters of a tip, 255
/// of a balloon.
void TrayAdd(Tray& tray, const QString& tip);
void TrayTip(Tray& tray, const QString& tip);
/// Whether the user wants balloons is for the caller to ask.
void TrayBalloon(Tray& tray, const QString& text);
void TrayRemove(Tray& tray);

} // namespace tarnwell

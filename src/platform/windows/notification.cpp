#include "platform/native.h"

namespace tarnwell {

bool native::showNotification(const QString&, const QString&) {
    return false; // balloons come out of the tray icon here
}

} // namespace tarnwell

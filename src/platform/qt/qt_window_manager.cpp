#include "platform/qt/qt_window_manager.h"

#include <QGuiApplication>
#include <QScreen>

namespace tarnwell {

WindowManager::Size QtWindowManager::screenSize() const {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {};
    }
    const QSizeF twips = QSizeF(screen->availableSize()) / pixelsPerTwip_();
    return {qRound(twips.width()), qRound(twips.height())};
}

} // namespace tarnwell

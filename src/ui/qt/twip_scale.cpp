#include "ui/qt/twip_scale.h"

#include <QtMath>

namespace tarnwell::view {

int TwipScale::pixels(int twips) const {
    return qRound(twips * pixelsPerTwip_);
}

int TwipScale::twips(int pixels) const {
    return qRound(pixels / pixelsPerTwip_);
}

} // namespace tarnwell::view

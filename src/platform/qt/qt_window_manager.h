#pragma once

#include "platform/ports.h"

namespace tarnwell {

/// The primary screen without its panels, measured by the scale that the windows are drawn with.
class QtWindowManager : public WindowManager {
public:
    /// `pixelsPerTwip` is asked each time, since the font may have changed; it is greater than 0.
    explicit QtWindowManager(std::function<double()> pixelsPerTwip)
        : pixelsPerTwip_(std::move(pixelsPerTwip)) {}

    Size screenSize() const override;

private:
    std::function<double()> pixelsPerTwip_;
};

} // namespace tarnwell

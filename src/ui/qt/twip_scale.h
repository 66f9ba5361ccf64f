#pragma once

namespace tarnwell::view {

/// Converts the windows' twips to pixels of the screen. Twips were measured with Tahoma 8 at 96 dots an inch;
/// a larger font makes everything larger by the same factor, so that nothing is clipped.
class TwipScale {
public:
    explicit TwipScale(double pixelsPerTwip) : pixelsPerTwip_(pixelsPerTwip) {}
    int pixels(int twips) const;
    int twips(int pixels) const;
    double pixelsPerTwip() const { return pixelsPerTwip_; }

private:
    double pixelsPerTwip_;
};

} // namespace tarnwell::view

#pragma once

#include "ui/qt/twip_scale.h"

#include <QFont>

class QWidget;

namespace tarnwell::view {

/// Places the bound widgets of one window. Frames have their declared sizes in twips; the scale makes them
/// large enough for what they hold.
class WindowLayout {
public:
    struct Heights {
        int least, most; ///< of the form, in twips; equal for a height that the user cannot change
    };
    static constexpr int kAnyHeight = 1'000'000;

    virtual ~WindowLayout() = default;
    /// The smallest scale at which nothing is clipped.
    virtual double neededPixelsPerTwip() const = 0;
    virtual void scaleTo(const TwipScale& scale) = 0;
    /// The form has got this height. Returns the heights that the user can drag the window to from there.
    virtual Heights showHeight(int formHeight) = 0;
};

/// How many pixels of the widget's smallest size come to one twip of the room that it is given.
double pixelsPerTwip(const QWidget& widget, int twipsWide, int twipsHigh);

/// How many pixels a twip must have for a text to be as wide, measured in twips, as it is in Tahoma 8.
double pixelsPerTwip(const QFont& font);

} // namespace tarnwell::view

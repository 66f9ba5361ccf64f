#pragma once

#include "base/shared.h"

namespace tarnwell {

/// The one font and the one pair of colours that the user can give to the three main windows. They are pushed
/// into the controls one by one; a control that cannot take a value is passed over.
class Appearance {
public:
    explicit Appearance(Shared& shared);

    /// Applies what the store holds: the font unless it is the windows' own, the colours if chkColors is on.
    /// A font that cannot be read is told to the user, and left out.
    void load();

    void ApplyFont(const QString& name, qint16 size, bool bold, bool italic);
    /// Foreground colours become `fore` if `isFore` is set; otherwise background colours become `back`.
    void ApplyColors(bool isFore, qint32 fore, qint32 back);

private:
    void chooseFont();
    void chooseForeColor();
    void chooseBackColor();
    void switchColors();

    void loadFont();
    void loadColors();
    void applyBoth(qint32 fore, qint32 back);
    void enableColorButtons(bool enable);
    void dressStatusWindow();

    Shared& shared_;
    std::optional<ui::Font> font_; ///< what was applied last; a size of 0 leaves that of each control
    std::optional<qint32> foreColor_, backColor_;
};

} // namespace tarnwell

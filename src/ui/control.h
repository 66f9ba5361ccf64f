#pragma once

#include "ui/property.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace tarnwell::ui {

class Form;
class Control;

/// 1440 twips are an inch, so at the normal display setting of 96 dots an inch a pixel has 15.
inline constexpr int kTwipsPerPixel = 15;

enum class Kind {
    Frame,
    Label,
    Line,
    Button,
    OptionButton,
    CheckBox,
    TextBox,
    ComboBox,
    ListView,
    PictureBox,
    TabStrip,
    Timer,
    CommonDialog
};

/// A font that was set on a control. Sizes are in points.
struct Font {
    QString name;
    double size = 0; ///< 0: the platform's
    bool bold = false;
    bool italic = false;
    bool operator==(const Font&) const = default;
};

/// A column of a list view; the width is in twips.
struct Column {
    QString header;
    int width = 0;
    bool operator==(const Column&) const = default;
};

/// How a control stands when its window is loaded. A declaration names what differs from the usual.
struct Declared {
    const Control* in = nullptr; ///< the frame that it lives in; none: the window itself
    QString caption{};           ///< a doubled ampersand shows as one
    QString text{};
    QString toolTip{};
    QString
        accessibleName{}; ///< what a screen reader calls a control without a caption or a label of its own
    bool enabled = true;
    bool visible = true;
    int value = 0; ///< check boxes: 0, 1, 2 (greyed); option buttons: 1 is chosen
    int left = 0, top = 0, width = 0, height = 0; ///< twips; 0 leaves it to the layout
    bool readOnly = false;
    bool multiLine = false;
    bool centred = false;
    bool multiSelect = false;
    bool editableLabels = false;
    bool link = false; ///< labels: a click opens something, as in a browser
    std::optional<Font> font{};
    QStringList items{};
    int listIndex = -1;
    std::vector<Column> columns{};
};

/// A control of a window: a name, a place, and the properties that every kind has.
class Control : public PropertyOwner {
public:
    Control(Form& form, Kind kind, const QString& name, const Declared& declared);
    virtual ~Control() = default;

    const QString name;
    const Kind kind;
    const Control* const container;
    const QString accessibleName;

    Property<bool> enabled;
    Property<bool> visible;
    Property<QString> toolTip;
    Property<QString> tag; ///< a text that the user does not see
    Property<int> left, top, width, height;
    Property<std::optional<Font>> font;              ///< none: the platform's
    Property<std::optional<std::int32_t>> foreColor; ///< 0x00BBGGRR, or a system colour with the high bit set
    Property<std::optional<std::int32_t>> backColor;

    Form& form() const { return form_; }

    /// Some kinds lack a property; walks over all controls pass those over.
    bool hasEnabled() const { return kind != Kind::Line && kind != Kind::CommonDialog; }
    bool hasFont() const { return kind != Kind::Line && kind != Kind::Timer && kind != Kind::CommonDialog; }
    bool hasColors() const { return hasFont() && kind != Kind::TabStrip; }

    /// Whether a user can reach it: itself and every frame round it enabled and visible, the window shown.
    bool usable() const;

    /// Back to the declared start state, without raising events.
    virtual void reset() { resetProperties(); }

private:
    Form& form_;
};

} // namespace tarnwell::ui

#include "ui/qt/bind_common.h"

#include "ui/qt/captions.h"
#include "ui/qt/colors.h"
#include "ui/qt/desktop_theme.h"
#include "ui/qt/event_watcher.h"

#include <QFontDatabase>

namespace tarnwell::view {

namespace {

/// Of the text that says what an empty control is filled by.
constexpr float kHintOpacity = 0.6F;

QPalette paletteOf(const ui::Control& control) {
    QPalette palette;
    if (const auto& fore = control.foreColor.get()) {
        // The disabled look stays the desktop's, or nobody would see what is off.
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                palette.setColor(group, role, toColor(*fore));
        }
        QColor hint = toColor(*fore);
        hint.setAlphaF(kHintOpacity);
        palette.setColor(QPalette::PlaceholderText, hint);
    }
    if (const auto& back = control.backColor.get()) {
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(role, toColor(*back));
    }
    return palette;
}

void bindColors(Binding& binding, ui::Control& control, QWidget& widget) {
    if (drawnByTheme(widget)) {
        keepThemeColors(binding, widget);
        return;
    }
    const bool opaqueByItself = widget.autoFillBackground();
    const auto show = [&control, &widget, opaqueByItself] {
        widget.setPalette(paletteOf(control));
        widget.setAutoFillBackground(opaqueByItself || control.backColor.get().has_value());
    };
    binding.listen(control.foreColor.changed, widget, show);
    binding.listen(control.backColor.changed, widget, show);
    binding.listen(binding.themeChanged, widget, [&control, show] {
        if (control.foreColor.get() || control.backColor.get())
            show();
    });
    if (control.foreColor.get() || control.backColor.get())
        show();
}

/// The tool writes columns, for letters of one width. Where Courier is missing any other font could stand in,
/// and where it is a picture of dots it cannot be scaled with the screen.
QString shownFamily(const QString& family) {
    if (family != QStringLiteral("Courier") || QFontDatabase::isSmoothlyScalable(family))
        return family;
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QFont toFont(const std::optional<ui::Font>& font) {
    if (!font)
        return {};
    QFont result(shownFamily(font->name));
    if (font->size > 0)
        result.setPointSizeF(font->size);
    result.setBold(font->bold);
    result.setItalic(font->italic);
    return result;
}

void bindFont(Binding& binding, ui::Control& control, QWidget& widget) {
    const auto show = [&control, &widget] { widget.setFont(toFont(control.font)); };
    binding.listen(control.font.changed, widget, show);
    if (!control.font.get())
        return;
    // A font of a control's own takes long to load, and the control may lie on a page that nobody opens.
    new EventWatcher(widget, [show](QEvent& event) {
        if (event.type() == QEvent::Show)
            show();
        return false;
    });
}

} // namespace

void bindCommon(Binding& binding, ui::Control& control, QWidget& widget) {
    widget.setObjectName(control.name);
    if (!control.accessibleName.isEmpty())
        widget.setAccessibleName(control.accessibleName);
    binding.follow(control.toolTip.changed, widget,
                   [&] { widget.setToolTip(plainToolTip(control.toolTip)); });
    binding.follow(control.enabled.changed, widget, [&] { widget.setEnabled(control.enabled); });
    binding.listen(control.visible.changed, widget, [&] { widget.setVisible(control.visible); });
    // The others are shown with the window, once they have been laid out.
    if (!control.visible)
        widget.hide();
    bindFont(binding, control, widget);
    if (control.kind != ui::Kind::PictureBox)
        bindColors(binding, control, widget);
}

} // namespace tarnwell::view

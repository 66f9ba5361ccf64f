#include "ui/qt/appearance.h"

#include "ui/qt/captions.h"
#include "ui/qt/desktop_theme.h"
#include "ui/qt/event_watcher.h"

#include <QApplication>
#include <QStyle>

namespace tarnwell::view {

namespace {

constexpr std::uint32_t kSystemColor = 0x80000000;

QPalette::ColorRole roleOfSystemColor(std::uint32_t number) {
    switch (number) {
    case 5:
        return QPalette::Base;
    case 8:
        return QPalette::Text;
    case 13:
        return QPalette::Highlight;
    case 14:
        return QPalette::HighlightedText;
    case 16:
        return QPalette::Dark;
    case 20:
        return QPalette::Light;
    case 7:
    case 18:
        return QPalette::ButtonText;
    default:
        return QPalette::Window;
    }
}

QPalette paletteOf(const ui::Control& control) {
    QPalette palette;
    if (const auto& fore = control.foreColor.get()) {
        // The disabled look stays the desktop's, or nobody would see what is off.
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                palette.setColor(group, role, toColor(*fore));
        }
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

QFont toFont(const std::optional<ui::Font>& font) {
    if (!font)
        return {};
    QFont result(font->name);
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

void reportPlace(Binding& binding, ui::Control& control, const QWidget& widget) {
    // Where writing runs from right to left, the left of the model is the leading edge, too.
    const QRect place =
        QStyle::visualRect(widget.layoutDirection(), widget.parentWidget()->rect(), widget.geometry());
    const TwipScale& scale = binding.scale();
    binding.report(control.left, scale.twips(place.left()));
    binding.report(control.top, scale.twips(place.top()));
    binding.report(control.width, scale.twips(place.width()));
    binding.report(control.height, scale.twips(place.height()));
}

} // namespace

QColor toColor(std::int32_t color) {
    const auto bits = static_cast<std::uint32_t>(color);
    if (bits & kSystemColor)
        return QApplication::palette().color(roleOfSystemColor(bits & 0xff));
    return QColor(static_cast<int>(bits & 0xff), static_cast<int>(bits >> 8 & 0xff),
                  static_cast<int>(bits >> 16 & 0xff));
}

QColor contrasting(const QColor& background) {
    constexpr int kMiddleGray = 140;
    return qGray(background.rgb()) < kMiddleGray ? Qt::white : Qt::black;
}

void bindAppearance(Binding& binding, ui::Control& control, QWidget& widget) {
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

    const bool placedByLayout = !control.left && !control.top && !control.width && !control.height;
    if (placedByLayout) {
        new EventWatcher(widget, [&](QEvent& event) {
            if (event.type() == QEvent::Move || event.type() == QEvent::Resize)
                reportPlace(binding, control, widget);
            return false;
        });
    }
}

} // namespace tarnwell::view

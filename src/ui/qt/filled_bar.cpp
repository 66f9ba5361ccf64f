#include "ui/qt/filled_bar.h"

#include "ui/qt/bind_controls.h"
#include "ui/qt/colors.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace tarnwell::view {

namespace {

constexpr int kFrameWidth = 1;
constexpr int kAccessibleSteps = 100;

void paintSide(QPainter& painter, const QRect& whole, const QRect& side, const QBrush& fill,
               const QColor& ink, const QString& text) {
    painter.save();
    painter.setClipRect(side);
    painter.fillRect(side, fill);
    painter.setPen(ink);
    painter.drawText(whole, Qt::AlignCenter, text);
    painter.restore();
}

/// The bar's own colours, so that those of the frame around it do not get in.
QPalette paletteOf(const ui::PictureBox& picture) {
    QPalette palette = QApplication::palette();
    QPalette all;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        // A bar reports; it looks the same while the window's controls pause.
        const auto from = group == QPalette::Disabled ? QPalette::Active : group;
        const QColor fill = picture.foreColor.get() ? toColor(*picture.foreColor.get())
                                                    : palette.color(QPalette::Active, QPalette::Highlight);
        const QColor ground =
            picture.backColor.get() ? toColor(*picture.backColor.get()) : palette.color(from, QPalette::Base);
        all.setColor(group, QPalette::Highlight, fill);
        all.setColor(group, QPalette::HighlightedText, contrasting(fill));
        all.setColor(group, QPalette::Base, ground);
        all.setColor(group, QPalette::Text, contrasting(ground));
        all.setColor(group, QPalette::Window, palette.color(from, QPalette::Window));
    }
    return all;
}

} // namespace

FilledBar::FilledBar(QWidget* parent) : QProgressBar(parent) {
    setRange(0, kAccessibleSteps);
    setValue(0);
    setAttribute(Qt::WA_OpaquePaintEvent); // spares the frame below it a painting
}

void FilledBar::showDrawing(const ui::PictureBox::Drawing& drawing, double scaleWidth) {
    text_ = drawing.text;
    filledPart_ = scaleWidth > 0 ? std::clamp(drawing.filledTo / scaleWidth, 0.0, 1.0) : 0;
    setValue(qRound(filledPart_ * kAccessibleSteps));
    update();
}

QSize FilledBar::sizeHint() const {
    constexpr int kRoomAroundText = 3;
    const QFontMetrics metrics = fontMetrics();
    const int around = 2 * (kRoomAroundText + kFrameWidth);
    return {metrics.horizontalAdvance(QStringLiteral("100%")) + around, metrics.height() + around};
}

void FilledBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette& colors = palette();
    drawOutline(painter, rect(), outlineOn(colors.color(QPalette::Window)));

    const QRect inside = rect().adjusted(kFrameWidth, kFrameWidth, -kFrameWidth, -kFrameWidth);
    QRect filled = inside;
    filled.setWidth(qRound(inside.width() * filledPart_));
    QRect rest = inside;
    rest.setLeft(filled.left() + filled.width());
    const auto place = [&](const QRect& side) { return QStyle::visualRect(layoutDirection(), rect(), side); };
    paintSide(painter, place(inside), place(rest), colors.base(), colors.color(QPalette::Text), text_);
    paintSide(painter, place(inside), place(filled), colors.highlight(),
              colors.color(QPalette::HighlightedText), text_);
}

QWidget* bindPictureBox(Binding& binding, ui::PictureBox& picture, QWidget* parent) {
    auto* bar = new FilledBar(parent);
    const auto showColors = [&picture, bar] { bar->setPalette(paletteOf(picture)); };
    binding.follow(picture.foreColor.changed, *bar, showColors);
    binding.listen(picture.backColor.changed, *bar, showColors);
    binding.listen(binding.themeChanged, *bar, showColors);
    const auto showDrawing = [&picture, bar] { bar->showDrawing(picture.drawing, picture.scaleWidth); };
    binding.follow(picture.drawing.changed, *bar, showDrawing);
    binding.listen(picture.scaleWidth.changed, *bar, showDrawing);
    return bar;
}

} // namespace tarnwell::view

#include "tour/screen_picture.h"

#include "tour/kept_pictures.h"
#include "tour/varying_places.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace tarnwell::tour {

namespace {

constexpr int kDesktopMargin = 24;
constexpr QRgb kDesktop = 0xFF8FA3AD;
constexpr QRgb kTitleBar = 0xFF38505C;

bool hasTitleBar(const QWidget& window) {
    return window.windowType() != Qt::Popup && window.windowType() != Qt::ToolTip;
}

int titleHeight() {
    return QFontMetrics(QApplication::font()).height() + 10;
}

QRect frameOf(const QWidget& window) {
    return window.geometry().adjusted(0, hasTitleBar(window) ? -titleHeight() : 0, 0, 0);
}

/// Dialogs lie above windows, menus above everything.
int layerOf(const QWidget& window) {
    if (!hasTitleBar(window))
        return 3;
    if (window.isModal())
        return 2;
    return window.isActiveWindow() ? 1 : 0;
}

QList<QWidget*> windowsUp() {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->isMinimized())
            windows += window;
    }
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget* a, const QWidget* b) { return layerOf(*a) < layerOf(*b); });
    return windows;
}

void paintWindow(QPainter& painter, QWidget& window) {
    const QRect frame = frameOf(window);
    if (hasTitleBar(window)) {
        const QRect bar(frame.topLeft(), QSize(frame.width(), titleHeight()));
        painter.fillRect(bar, QColor(kTitleBar));
        painter.setPen(Qt::white);
        painter.drawText(bar.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeading,
                         window.windowTitle());
    }
    painter.drawPixmap(window.geometry().topLeft(), window.grab());
    painter.setPen(QColor(kTitleBar));
    painter.drawRect(frame.adjusted(-1, -1, 0, 0));
}

} // namespace

QImage screenPicture() {
    const QList<QWidget*> windows = windowsUp();
    QRect all;
    for (const QWidget* window : windows)
        all |= frameOf(*window);
    all.adjust(-kDesktopMargin, -kDesktopMargin, kDesktopMargin, kDesktopMargin);

    QImage picture(all.size(), QImage::Format_RGB32);
    picture.fill(kDesktop);
    QPainter painter(&picture);
    painter.translate(-all.topLeft());
    QList<QRect> varying;
    for (QWidget* window : windows) {
        paintWindow(painter, *window);
        for (const QRect& place : varyingPlaces(*window))
            varying += place.translated(window->geometry().topLeft() - all.topLeft());
    }
    painter.end();
    noteVaryingPlaces(picture, varying);
    return picture;
}

} // namespace tarnwell::tour

#include "ui/qt/application_icon.h"

#include <QIconEngine>
#include <QPainter>

#include <algorithm>

// The pictures lie in a static library: without this call the linker would leave them out.
static void initializePictures() {
    Q_INIT_RESOURCE(icons);
}

namespace tarnwell::view {

namespace {

constexpr int kSizes[] = {16, 20, 24, 32, 48, 64, 128, 256};

/// Decodes a picture when a desktop asks for its size, which most do for one or two. Qt's own icons decode
/// all of them at once, while the user waits for the window.
class Pictures final : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        const int* larger = std::lower_bound(std::begin(kSizes), std::end(kSizes), side);
        const int nearest = larger == std::end(kSizes) ? *std::prev(larger) : *larger;
        const QPixmap picture(QStringLiteral(":/icons/tarnwell-%1.png").arg(nearest));
        return side >= nearest ? picture
                               : picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        return {side, side}; // also in a panel whose place for it is not square
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(place, pixmap(place.size(), mode, state));
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int size : kSizes)
            sizes.append({size, size});
        return sizes;
    }

    QIconEngine* clone() const override { return new Pictures(*this); }
};

} // namespace

QIcon applicationIcon() {
    initializePictures();
    return QIcon(new Pictures);
}

} // namespace tarnwell::view

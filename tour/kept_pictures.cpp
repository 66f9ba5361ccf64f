#include "tour/kept_pictures.h"

#include <QPainter>
#include <QStringList>

#include <cstdlib>

namespace tarnwell::tour {

namespace {

const QString kKey = QStringLiteral("Varying places");
constexpr int kSides = 4;

/// The smoothing of letters differs this much from one version of its library to the next.
constexpr int kShade = 48;
constexpr int kStrayPixels = 12;
/// A label whose text varies may vary in width.
constexpr int kPixelsAside = 6;

QList<QRect> varyingPlaces(const QImage& picture) {
    QList<QRect> places;
    for (const QString& place : picture.text(kKey).split(' ', Qt::SkipEmptyParts)) {
        const QStringList sides = place.split(',');
        if (sides.size() == kSides)
            places += QRect(sides[0].toInt(), sides[1].toInt(), sides[2].toInt(), sides[3].toInt());
    }
    return places;
}

bool nearby(const QList<QRect>& some, const QList<QRect>& others) {
    return std::equal(some.begin(), some.end(), others.begin(), others.end(), [](QRect a, QRect b) {
        return (a.topLeft() - b.topLeft()).manhattanLength() <= kPixelsAside;
    });
}

QImage withoutPlaces(const QImage& picture, const QList<QRect>& places) {
    QImage rest = picture.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&rest);
    for (const QRect& place : places)
        painter.fillRect(place, Qt::black);
    return rest;
}

bool differ(QRgb a, QRgb b) {
    return a != b && (std::abs(qRed(a) - qRed(b)) > kShade || std::abs(qGreen(a) - qGreen(b)) > kShade ||
                      std::abs(qBlue(a) - qBlue(b)) > kShade);
}

/// The corner round all pixels that differ, as far as there are more than strays.
QRect differingPart(const QImage& kept, const QImage& fresh) {
    QRect part;
    int pixels = 0;
    for (int y = 0; y < kept.height(); ++y) {
        const auto* const before = reinterpret_cast<const QRgb*>(kept.constScanLine(y));
        const auto* const now = reinterpret_cast<const QRgb*>(fresh.constScanLine(y));
        for (int x = 0; x < kept.width(); ++x) {
            if (!differ(before[x], now[x]))
                continue;
            part |= QRect(x, y, 1, 1);
            ++pixels;
        }
    }
    return pixels > kStrayPixels ? part : QRect();
}

QString words(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

void noteVaryingPlaces(QImage& picture, const QList<QRect>& places) {
    QStringList texts;
    for (const QRect& place : places) {
        texts += QStringLiteral("%1,%2,%3,%4")
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height());
    }
    picture.setText(kKey, texts.join(' '));
}

QString difference(const QImage& kept, const QImage& fresh) {
    if (fresh.isNull())
        return "the tour shows it no more";
    if (kept.size() != fresh.size())
        return "its size was " + words(kept.size()) + " and is " + words(fresh.size());
    const QList<QRect> before = varyingPlaces(kept), now = varyingPlaces(fresh);
    if (!nearby(before, now))
        return "clocks, bars or paths stand elsewhere";
    const QRect part = differingPart(withoutPlaces(kept, before + now), withoutPlaces(fresh, before + now));
    return part.isEmpty() ? QString()
                          : QStringLiteral("it looks different from (%1, %2) to (%3, %4)")
                                .arg(part.left())
                                .arg(part.top())
                                .arg(part.right())
                                .arg(part.bottom());
}

QString freshFile(const QDir& folder, const QString& name) {
    const QStringList files = folder.entryList({"[0-9][0-9]-" + name + ".png"});
    return files.isEmpty() ? QString() : folder.filePath(files.first());
}

QImage freshPicture(const QDir& folder, const QString& name) {
    const QString file = freshFile(folder, name);
    return file.isEmpty() ? QImage() : QImage(file);
}

} // namespace tarnwell::tour

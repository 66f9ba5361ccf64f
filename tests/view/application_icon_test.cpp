#include "ui/qt/application_icon.h"
#include "view/view_fixture.h"

#include <QPainter>

namespace tarnwell::view {

TEST(ApplicationIcon, HasAllSizesFromTrayToDesktop) {
    const QIcon icon = applicationIcon();
    for (const int size : {16, 20, 24, 32, 48, 64, 128, 256})
        EXPECT_EQ(icon.pixmap(size).size(), QSize(size, size));
}

TEST(ApplicationIcon, KeepsItsShapeInAPlaceThatIsNotSquare) {
    QImage picture(20, 40, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    applicationIcon().paint(&painter, picture.rect());
    painter.end();
    EXPECT_EQ(picture.pixelColor(10, 5).alpha(), 0);
    EXPECT_GT(picture.pixelColor(10, 20).alpha(), 0);
}

} // namespace tarnwell::view

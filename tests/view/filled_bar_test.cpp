#include "support/gtest_qt.h"
#include "ui/frm_status.h"
#include "ui/qt/filled_bar.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tarnwell::view {

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 24;

QImage pictureOf(const ui::PictureBox::Drawing& drawing, double scaleWidth) {
    FilledBar bar(nullptr);
    bar.resize(kWidth, kHeight);
    bar.showDrawing(drawing, scaleWidth);
    return bar.grab().toImage();
}

QColor colorAt(const QImage& picture, int x) {
    constexpr int kAboveText = 2;
    return picture.pixelColor(x, kAboveText);
}

int differentColors(const QImage& picture, int from, int to) {
    int different = 0;
    for (int x = from; x < to; ++x) {
        for (int y = 4; y < kHeight - 4; ++y)
            different += picture.pixelColor(x, y) != colorAt(picture, x);
    }
    return different;
}

} // namespace

TEST(FilledBar, FillsFromTheLeftEdgeInUnitsOfItsScale) {
    const QPalette palette;
    const QImage picture = pictureOf({"25%", 50}, 200);
    EXPECT_EQ(colorAt(picture, 45), palette.color(QPalette::Highlight));
    EXPECT_EQ(colorAt(picture, 55), palette.color(QPalette::Base));
}

TEST(FilledBar, IsEmptyAtNothingAndFullAtItsScale) {
    const QPalette palette;
    EXPECT_EQ(colorAt(pictureOf({"0%", 0}, 100), 2), palette.color(QPalette::Base));
    EXPECT_EQ(colorAt(pictureOf({"100%", 100}, 100), kWidth - 3), palette.color(QPalette::Highlight));
    EXPECT_EQ(colorAt(pictureOf({"", 5}, 0), 2), palette.color(QPalette::Base))
        << "a scale of nothing fills nothing";
}

TEST(FilledBar, LeavesNoPixelOfItselfUnpainted) {
    FilledBar bar(nullptr);
    bar.resize(kWidth, kHeight);
    bar.showDrawing({"50%", 50}, 100);
    QImage picture(bar.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    bar.render(&picture, {}, {}, {});
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(picture.pixelColor(x, y).alpha(), 255) << x << ", " << y;
    }
}

TEST(FilledBar, TextCanBeReadBesideOverAndAcrossTheFilledBox) {
    for (const double filled : {0.0, 50.0, 100.0}) {
        const QImage picture = pictureOf({"50%", filled}, 100);
        EXPECT_GT(differentColors(picture, kWidth / 2 - 14, kWidth / 2 - 1), 20) << filled;
        EXPECT_GT(differentColors(picture, kWidth / 2 + 1, kWidth / 2 + 14), 20) << filled;
    }
}

TEST(FilledBar, TellsScreenReadersItsValue) {
    FilledBar bar(nullptr);
    bar.showDrawing({"62%", 62}, 100);
    EXPECT_EQ(bar.value(), 62);
    EXPECT_EQ(bar.text(), "62%");
}

} // namespace tarnwell::view

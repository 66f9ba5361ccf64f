#include "status/percent_bar.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"
#include "ui/frm_main.h"

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

class PercentBarTest : public ::testing::Test {
protected:
    test::FakePorts outside;
    ui::FrmMain form;
    ui::PictureBox& picture = form.picDiskSpace;

    void draw(qint32 maximum, qint32 value) { PercentBar(picture, maximum, value, outside.pump); }
    QString text() const { return picture.drawing.get().text; }
    double filledTo() const { return picture.drawing.get().filledTo; }
};

TEST_F(PercentBarTest, FillsTheBoxUpToTheValue) {
    draw(200, 50);
    EXPECT_EQ(text(), "25%");
    EXPECT_EQ(filledTo(), 50);
    EXPECT_EQ(picture.scaleWidth, 200);
}

TEST_F(PercentBarTest, FillsTheWholeBoxAtTheMaximum) {
    draw(100, 100);
    EXPECT_EQ(text(), "100%");
    EXPECT_EQ(filledTo(), 100);
}

TEST_F(PercentBarTest, DrawsABoxOfNoWidthAtZero) {
    draw(100, 0);
    EXPECT_EQ(text(), "0%");
    EXPECT_EQ(filledTo(), 0);
}

TEST_F(PercentBarTest, LeavesTheOldBarForAValueAboveTheMaximum) {
    draw(100, 40);
    const int pumps = outside.pump.pumps;
    draw(100, 101);
    EXPECT_EQ(text(), "40%");
    EXPECT_EQ(outside.pump.pumps, pumps);
}

TEST_F(PercentBarTest, ComparesWithTheScaleOfTheBarBefore) {
    draw(10, 5);
    draw(100, 50);
    EXPECT_EQ(text(), "10%");
    EXPECT_EQ(filledTo(), 10);
    EXPECT_EQ(picture.scaleWidth, 100);
    draw(100, 50);
    EXPECT_EQ(text(), "50%");
}

TEST_F(PercentBarTest, ComparesWithTheBoxItselfTheFirstTime) {
    picture.scaleWidth = 30.5;
    draw(100, 50);
    EXPECT_EQ(filledTo(), 30);
}

TEST_F(PercentBarTest, LetsEventsInBehindTheDrawing) {
    QString seen;
    outside.pump.queue([&] { seen = text(); });
    draw(100, 40);
    EXPECT_EQ(seen, "40%");
}

TEST_F(PercentBarTest, RoundsThePercentToTheNearestAndHalvesToTheEven) {
    draw(3, 1);
    EXPECT_EQ(text(), "33%");
    draw(3, 2);
    EXPECT_EQ(text(), "67%");
    draw(200, 1);
    EXPECT_EQ(text(), "0%");
    draw(200, 3);
    EXPECT_EQ(text(), "2%");
}

} // namespace
} // namespace tarnwell

#include "base/mod_tray_icon.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

struct TrayIcon : testing::Test {
    test::Journal journal;
    test::FakeTray tray{journal};
};

TEST_F(TrayIcon, StandsFromTheStartToTheEnd) {
    TrayAdd(tray, "Title");
    EXPECT_TRUE(tray.shown);
    EXPECT_EQ(tray.tip(), "Title");
    TrayRemove(tray);
    EXPECT_FALSE(tray.shown);
}

TEST_F(TrayIcon, CutsALongTip) {
    TrayTip(tray, QString(127, 'a') + "b");
    EXPECT_EQ(tray.tip(), QString(127, 'a'));
}

TEST_F(TrayIcon, ShowsBalloonsUnderTheProgramsNameAndKeepsTheTip) {
    TrayTip(tray, "Tip");
    TrayBalloon(tray, QString(255, 'a') + "b");
    ASSERT_EQ(tray.balloons.size(), 1u);
    EXPECT_EQ(tray.balloons[0].title, "Tarnwell GUI");
    EXPECT_EQ(tray.balloons[0].text, QString(255, 'a'));
    EXPECT_EQ(tray.tip(), "Tip");
}

} // namespace
} // namespace tarnwell

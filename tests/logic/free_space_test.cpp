#include "base/fault.h"
#include "logic/install_fixture.h"
#include "workflows/free_space.h"

#include <limits>

namespace tarnwell::test {

namespace {

struct FreeSpace : InstallNow {
    void setSpace(const QString& freeMegabytes, const QString& gameMegabytes) {
        frmMain.picDiskSpace.tag = freeMegabytes;
        frmMain.txtGameSize.tag = gameMegabytes;
    }
};

} // namespace

TEST(RoundUp128, TakesWholeUnits) {
    EXPECT_EQ(RoundUp128(0), 0);
    EXPECT_EQ(RoundUp128(1), 128);
    EXPECT_EQ(RoundUp128(128), 128);
    EXPECT_EQ(RoundUp128(4097), 4224);
    EXPECT_EQ(RoundUp128(-100), 0);
    EXPECT_EQ(RoundUp128(-128), -128);
    EXPECT_EQ(RoundUp128(-129), -128);
    EXPECT_EQ(RoundUp128(std::numeric_limits<qint32>::min()), std::numeric_limits<qint32>::min());
}

TEST(RoundUp128, KnowsNoUnitsBeyondItsNumbers) {
    constexpr qint32 kMostUnits = 2'147'483'520;
    EXPECT_EQ(RoundUp128(kMostUnits - 1), kMostUnits);
    EXPECT_EQ(RoundUp128(kMostUnits), kMostUnits);
    EXPECT_THROW(RoundUp128(kMostUnits + 1), Fault);
    EXPECT_THROW(RoundUp128(std::numeric_limits<qint32>::max()), Fault);
}

TEST_F(FreeSpace, AGameThatJustFitsIsTaken) {
    setSpace("4096", "4096");
    ui::click(frmMain.cmdInstall);
    EXPECT_NE(installCommand(), "");
}

TEST_F(FreeSpace, AGameThatNeedsAnotherUnitIsRefusedWithTheSizeItNeeds) {
    setSpace("4200", "4097");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(installCommand(), "");
    EXPECT_EQ(lastMessage(),
              "You do not have enough available space on your hard-drive to install this game."
              "\r\n\r\nTo install this game you need 4224MB and you only have 4200MB available.");
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(FreeSpace, AHalfMegabyteGoesToTheEvenNumber) {
    setSpace("4096", "4096.5");
    ui::click(frmMain.cmdInstall);
    EXPECT_NE(installCommand(), "");
}

TEST_F(FreeSpace, ASizeThatWasNeverReadIsToldAndStartsNothing) {
    setSpace("4096", "");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game is not known"));
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.shown());
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/lantern.iso");
}

TEST_F(FreeSpace, ASizeBeyondAllDisksIsToldAndStartsNothing) {
    setSpace("4096", "2147483600");
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game, 2147483600 MB, is more than any disk"));
    EXPECT_EQ(installCommand(), "");
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
}

} // namespace tarnwell::test

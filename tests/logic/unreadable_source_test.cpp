#include "support/program_test.h"

namespace tarnwell::test {

namespace {

const QByteArray kTwoDrives =
    "\tcd0:  700 MB\r\n\tcd1:  4482 MB\r\nvia SPTI:\r\n\tD: disc 700 MB\r\n\tE: disc 4482 MB\r\n";

/// A game has been read from one source, and then another cannot be read.
struct UnreadableSource : ProgramTest {
    UnreadableSource() {
        answerQueryWith(kTwoDrives);
        answerTocWith(kTwoGames);
        answerDiscInfoWith("dual-layer DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        start();
        ui::click(frmMain.cmdAttach);
    }

    void pick(const QString& file) {
        ports.dialogs.openFileAnswers.push_back(file);
        ui::click(frmMain.cmdISO);
    }
    void expectNothingKnown() const {
        EXPECT_EQ(frmMain.txtGameName.text.get(), "");
        EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
        EXPECT_EQ(frmMain.txtGameSize.text.get(), "");
        EXPECT_EQ(frmMain.txtGameSize.tag.get(), "");
        EXPECT_FALSE(frmMain.lblDVD9.visible);
    }
};

} // namespace

TEST_F(UnreadableSource, AnImageDoesNotGetTheGameOfTheOneBefore) {
    pick("/games/lantern.iso");
    ASSERT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    ASSERT_TRUE(frmMain.lblDVD9.visible);
    answerDiscInfoWith("bad ISOFS.\r\n");
    pick("/games/broken.iso");
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/broken.iso");
    expectNothingKnown();
}

TEST_F(UnreadableSource, AnImageIsNotInstalledWithTheSizeOfTheOneBefore) {
    pick("/games/lantern.iso");
    answerDiscInfoWith("bad ISOFS.\r\n");
    pick("/games/broken.iso");
    ui::type(frmMain.txtGameName, "Broken");
    ui::click(frmMain.cmdInstall);
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(ports.dialogs.messages.size(), 2u);
    EXPECT_TRUE(lastMessage().startsWith("The size of the game is not known"));
    EXPECT_EQ(commands().filter("inject"), QStringList());
    EXPECT_EQ(frmMain.lstJob.count(), 0);
}

TEST_F(UnreadableSource, TheMarkOfTwoLayersGoesWithItsImage) {
    pick("/games/lantern.iso");
    answerDiscInfoWith("CD 716800KB \"COPPER\" \"SLES_990.03\"\r\n");
    pick("/games/copper.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "COPPER");
    EXPECT_FALSE(frmMain.lblDVD9.visible);
}

TEST_F(UnreadableSource, ADiscDoesNotGetTheGameOfTheOneBefore) {
    ui::click(frmMain.optOptical);
    ui::choose(frmMain.cmbOptical, 0);
    ASSERT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    answerDiscInfoWith("not a Playstation CD-ROM/DVD-ROM.\r\n");
    ui::choose(frmMain.cmbOptical, 1);
    EXPECT_EQ(lastMessage(), "The disc in the selected drive is not a PS2 game disc.");
    expectNothingKnown();
}

TEST_F(UnreadableSource, WhatWasReadStaysForTheEyeUntilAnotherIsPicked) {
    pick("/games/lantern.iso");
    removeTool();
    pick("/games/broken.iso");
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/lantern.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
}

} // namespace tarnwell::test

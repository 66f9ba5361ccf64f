#include "interpreter_fixture.h"

namespace tarnwell {
namespace {

class DiscStage : public InterpreterTest {
protected:
    void answer(const QString& text) {
        shared.blnDiscInfo = true;
        read(text);
    }
    void chooseDrive() {
        form.optOptical.value = true;
        form.cmbOptical.addItem("cd0:  [4.38GB]");
        form.cmbOptical.listIndex = 0;
    }
};

TEST_F(DiscStage, FillsTheInstallPage) {
    form.cmbType.listIndex = 0;
    answer("DVD 4194305KB \"NAME\" \"SLUS_123.45\"");
    EXPECT_EQ(form.cmbType.text(), "DVD-ROM");
    EXPECT_EQ(form.txtGameSize.text.get(), "4.00GB");
    EXPECT_EQ(form.txtGameSize.tag.get(), "4096.0009765625");
    EXPECT_EQ(form.txtGameName.text.get(), "NAME");
    EXPECT_EQ(form.txtGameStartup.text.get(), "SLUS_123.45");
    EXPECT_TRUE(form.cmdCompat.enabled);
    EXPECT_FALSE(form.cmdMakeISO.enabled);
    EXPECT_FALSE(form.lblDVD9.visible);
    EXPECT_FALSE(shared.blnDiscInfo);
}

TEST_F(DiscStage, LeavesTheLineEndOutOfTheStartupFile) {
    answer("CD 716800KB \"NAME\" \"SLUS_123.45\"\r\n");
    EXPECT_EQ(form.txtGameStartup.text.get(), "SLUS_123.45");
    EXPECT_EQ(form.txtGameSize.text.get(), "0.68GB");
    EXPECT_EQ(form.txtGameSize.tag.get(), "700");
}

TEST_F(DiscStage, TakesEveryWordButDvdForACd) {
    for (const char* type : {"CD", "CD-ROM", "CDDA", "DVD9"}) {
        form.cmbType.listIndex = 1;
        answer(QString(type) + " 1024KB NAME SLUS_123.45");
        EXPECT_EQ(form.cmbType.listIndex, 0) << type;
        EXPECT_FALSE(shared.blnDiscInfo) << type;
    }
}

TEST_F(DiscStage, OffersAnImageOfADiscInADrive) {
    chooseDrive();
    answer("DVD 1024KB \"NAME\" \"SLUS_123.45\"");
    EXPECT_TRUE(form.cmdMakeISO.enabled);
}

TEST_F(DiscStage, ShowsTheMarkOfADualLayerDisc) {
    answer("dual-layer DVD 8388608KB \"NAME\" \"SLUS_123.45\"");
    EXPECT_TRUE(form.lblDVD9.visible);
    EXPECT_EQ(form.txtGameSize.text.get(), "8.00GB");
    EXPECT_EQ(form.txtGameName.text.get(), "NAME");
    answer("DVD 1024KB \"NAME\" \"SLUS_123.45\"");
    EXPECT_TRUE(form.lblDVD9.visible);
}

TEST_F(DiscStage, NamesAGameWithoutALabelAfterItsImage) {
    const std::pair<const char*, const char*> names[] = {
        {"C:\\Images\\My Game.iso", "My Game"},
        {"/home/me/My Game.iso", "My Game"},
        {"My Game.iso", "My Game"},
        {"C:\\My Game.image", "My Game.i"},
        {"C:\\abc", ""},
    };
    for (const auto& [path, name] : names) {
        form.txtISO.text = path;
        answer("DVD 1024KB \"\" \"SLUS_123.45\"");
        EXPECT_EQ(form.txtGameName.text.get(), name) << path;
    }
}

TEST_F(DiscStage, LeavesADiscWithoutALabelNameless) {
    chooseDrive();
    form.txtISO.text = "C:\\My Game.iso";
    answer("DVD 1024KB \"\" \"SLUS_123.45\"");
    EXPECT_EQ(form.txtGameName.text.get(), "");
}

TEST_F(DiscStage, CutsANameAtItsBlank) {
    answer("DVD 1024KB \"MY GAME\" \"SLUS_123.45\"");
    EXPECT_EQ(form.txtGameName.text.get(), "MY");
    EXPECT_EQ(form.txtGameStartup.text.get(), "GAME");
}

TEST_F(DiscStage, ReadsNamesOfAnyLanguageAndLength) {
    const QString name = QString::fromUtf8("Pok\u00e9mon") + QString(300, 'x');
    answer("DVD 1024KB \"" + name + "\" \"SLUS_123.45\"");
    EXPECT_EQ(form.txtGameName.text.get(), name);
}

TEST_F(DiscStage, ReportsADriveThatIsNotReadyAndDropsTheChoice) {
    chooseDrive();
    answer("cd0:: The device is not ready.\r\n");
    EXPECT_EQ(form.cmbOptical.listIndex, -1);
    EXPECT_EQ(messages(),
              QStringList{"There is either no disc in the drive or a PS2 game was not found on the disc."});
    EXPECT_FALSE(shared.blnDiscInfo);
}

TEST_F(DiscStage, ReportsADriveThatIsNotReadyWhicheverSourceIsChosen) {
    chooseDrive();
    form.optISO.value = true;
    answer("cd0:: The device is not ready.\r\n");
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(DiscStage, HasDroppedTheChoiceWhenItReportsADriveThatIsNotReady) {
    chooseDrive();
    int chosen = 0;
    bool stillAsked = false;
    outside.dialogs.whileOpen = [&] {
        chosen = form.cmbOptical.listIndex;
        stillAsked = shared.blnDiscInfo;
    };
    answer("cd0:: The device is not ready.\r\n");
    EXPECT_EQ(chosen, -1);
    EXPECT_TRUE(stillAsked);
}

TEST_F(DiscStage, ReportsWithAnExclamationMark) {
    for (const char* text : {"bad ISOFS.", "The device is not ready."}) {
        chooseDrive();
        answer(text);
        ASSERT_FALSE(outside.dialogs.messages.empty());
        EXPECT_EQ(outside.dialogs.messages.back().icon, MessageIcon::Exclamation) << text;
    }
}

TEST_F(DiscStage, IsStillAskedWhileItReportsADiscThatIsNoGame) {
    chooseDrive();
    bool stillAsked = false;
    outside.dialogs.whileOpen = [&] { stillAsked = shared.blnDiscInfo; };
    answer("cd0:: bad ISOFS.\r\n");
    EXPECT_TRUE(stillAsked);
}

TEST_F(DiscStage, ReportsADriveThatIsNotReadyRatherThanADiscThatIsNoGame) {
    chooseDrive();
    answer("cd0:: bad ISOFS. The device is not ready.\r\n");
    EXPECT_EQ(messages(),
              QStringList{"There is either no disc in the drive or a PS2 game was not found on the disc."});
}

TEST_F(DiscStage, SaysNothingOfADriveThatIsNotChosen) {
    form.optOptical.value = true;
    answer("cd0:: The device is not ready.\r\n");
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_TRUE(shared.blnDiscInfo);
}

TEST_F(DiscStage, ReportsADiscThatIsNoGameAndKeepsTheChoice) {
    chooseDrive();
    shared.title = " Tarnwell GUI";
    for (const char* text : {"cd0:: not a Playstation CD-ROM/DVD-ROM.\r\n", "cd0:: bad ISOFS.\r\n"}) {
        answer(text);
        EXPECT_EQ(form.cmbOptical.listIndex, 0);
        EXPECT_FALSE(shared.blnDiscInfo);
        ASSERT_FALSE(outside.dialogs.messages.empty());
        EXPECT_EQ(outside.dialogs.messages.back().text,
                  "The disc in the selected drive is not a PS2 game disc.");
        EXPECT_EQ(outside.dialogs.messages.back().title, "Not a PS2 Game");
    }
    EXPECT_EQ(messages().size(), 2);
}

TEST_F(DiscStage, WaitsOnAfterABadImage) {
    answer("bad ISOFS.\r\n");
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_TRUE(shared.blnDiscInfo);
}

TEST_F(DiscStage, WaitsOnBehindWordsThatAreNoType) {
    for (const char* text : {"", "C", "DV", "PSX 1024KB NAME SLUS_990.71", " DVD 1024KB NAME SLUS_990.71",
                             "a CD 1024KB NAME SLUS_990.71", "a dual-layer DVD 1024KB NAME SLUS_990.71"}) {
        answer(text);
        EXPECT_TRUE(shared.blnDiscInfo) << text;
        EXPECT_EQ(form.txtGameName.text.get(), "") << text;
    }
    EXPECT_FALSE(form.lblDVD9.visible);
}

TEST_F(DiscStage, ShowsTheMarkOfADualLayerDiscWhoseAnswerEndsThere) {
    for (const char* text : {"dual-layer", "dual-layer ", "dual-layer\r\n"}) {
        form.lblDVD9.visible = false;
        answer(text);
        EXPECT_TRUE(form.lblDVD9.visible) << text;
        EXPECT_TRUE(shared.blnDiscInfo) << text;
    }
}

TEST_F(DiscStage, FillsInAllThatATooShortLineTells) {
    form.cmbType.listIndex = 0;
    EXPECT_THROW(answer("DVD"), Fault);
    EXPECT_EQ(form.cmbType.text(), "DVD-ROM");
    EXPECT_THROW(answer("DVD 8"), Fault);
    EXPECT_EQ(form.txtGameSize.text.get(), "");
    EXPECT_THROW(answer("DVD 1048576KB"), Fault);
    EXPECT_EQ(form.txtGameSize.text.get(), "1.00GB");
    EXPECT_EQ(form.txtGameSize.tag.get(), "1024");
    EXPECT_THROW(answer("DVD 1048576KB LANTERN"), Fault);
    EXPECT_EQ(form.txtGameName.text.get(), "LANTERN");
    EXPECT_FALSE(form.cmdCompat.enabled);
}

TEST_F(DiscStage, RefusesALineOfTooFewWords) {
    EXPECT_THROW(answer("DVD 1024KB NAME"), Fault);
    EXPECT_TRUE(shared.blnDiscInfo);
    EXPECT_EQ(form.txtGameName.text.get(), "NAME");
    EXPECT_FALSE(form.cmdCompat.enabled);
    EXPECT_THROW(answer("DVD"), Fault);
    EXPECT_THROW(answer("DVD  1024KB NAME SLUS"), Fault);
}

} // namespace
} // namespace tarnwell

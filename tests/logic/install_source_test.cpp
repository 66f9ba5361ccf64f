#include "logic/install_fixture.h"

namespace tarnwell::test {

namespace {

const QByteArray kOneDrive =
    "\tcd0:  no disc\r\n\tcd1:  4482 MB\r\nvia SPTI:\r\n\tD: no disc: none\r\n\tE: disc 4482 MB\r\n";
const QByteArray kTwoDrives =
    "\tcd0:  700 MB\r\n\tcd1:  4482 MB\r\nvia SPTI:\r\n\tD: disc 700 MB\r\n\tE: disc 4482 MB\r\n";
const QByteArray kNoDrives = "\tcd0:  no disc\r\n";
const QByteArray kDvd = "DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n";
const QByteArray kDualLayerDvd = "dual-layer " + kDvd;

struct InstallSource : ProgramTest {
    InstallSource() {
        answerQueryWith(kOneDrive);
        answerDiscInfoWith(kDvd);
        start();
    }

    void pick(const QString& file) {
        ports.dialogs.openFileAnswers.push_back(file);
        ui::click(frmMain.cmdISO);
    }
    void checkFlags(std::initializer_list<std::size_t> entries) {
        for (const std::size_t entry : entries)
            ui::click(frmMain.mnuFlags[entry]);
    }
    /// Half a second from now, while a command of this kind is at work if it is the next one.
    void watchPointerDuring(const QString& command, const QByteArray& answer) {
        ports.launcher.on("tarnwell.exe " + command, {.output = {{answer, 900}}, .endsAtMs = 1000});
        ports.pump.after(500, [this] { pointer_ = frmMain.mousePointer; });
    }
    void expectHourglassInBetween() const {
        EXPECT_EQ(pointer_, ui::MousePointer::Hourglass);
        EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
    }
    QString checkedFlags() const {
        QString checked;
        for (std::size_t i = 0; i < frmMain.mnuFlags.size(); ++i)
            checked += frmMain.mnuFlags[i].checked ? '1' : '0';
        return checked;
    }

    ui::MousePointer pointer_ = ui::MousePointer::Default;
};

} // namespace

TEST_F(InstallSource, GoingBackToImagesWhileTheDrivesAreSoughtReadsNoDisc) {
    ports.launcher.on("tarnwell.exe query", {.output = {{kOneDrive}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::click(frmMain.optISO); });
    ui::click(frmMain.optOptical);
    EXPECT_TRUE(frmMain.optISO.value);
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_FALSE(frmMain.cmdMakeISO.enabled);
}

TEST_F(InstallSource, PickingAnImageFillsThePage) {
    pick("/games/My Game.iso");
    EXPECT_EQ(commands(), QStringList("cdvd_info2 \"/games/My Game.iso\""));
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/My Game.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "SLUS_990.71");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "4.00GB");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
    EXPECT_EQ(frmMain.cmbType.text(), "DVD-ROM");
    EXPECT_TRUE(frmMain.cmdCompat.enabled);
    EXPECT_FALSE(frmMain.cmdMakeISO.enabled);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(InstallSource, ADiscThatIsReadAfterGoingBackToImagesFillsNothing) {
    answerDiscInfoWith({});
    ports.launcher.on("tarnwell.exe cdvd_info2", {.output = {{kDvd, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::click(frmMain.optISO); });
    ui::click(frmMain.optOptical);
    EXPECT_EQ(commands().last(), "cdvd_info2 E:");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "");
}

TEST_F(InstallSource, ADiscThatIsStillBeingReadIsNotTakenForAnImage) {
    ports.launcher.on("tarnwell.exe cdvd_info2", {.output = {{kDvd, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] {
        ui::click(frmMain.optISO);
        pick("/games/other.iso");
    });
    ui::click(frmMain.optOptical);
    EXPECT_TRUE(lastMessage().startsWith("An unknown error has occurred.")) << "the tool was busy";
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/other.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
    EXPECT_FALSE(program.shared().blnDiscInfo);
}

TEST_F(InstallSource, AnImageThatIsGivenUpWhileItIsReadFillsNothing) {
    ports.launcher.on("tarnwell.exe cdvd_info2", {.output = {{kDvd, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] {
        ports.dialogs.openFileAnswers.emplace_back(std::nullopt);
        ui::click(frmMain.cmdISO);
    });
    pick("/games/a.iso");
    EXPECT_EQ(frmMain.txtISO.text.get(), "");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
}

TEST_F(InstallSource, AnImageOutsideTheCodePageIsHandedOnByItsShortName) {
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2\xe3\x83\xbc\xe3\x83\xa0/"), own = "lantern.iso",
                  foreign = QString::fromUtf8("\xe3\x82\xb2.iso");
    ports.folders.namesInCodePage = {{folder, "/1A2B~1/"},
                                     {folder + foreign, "/1A2B~1/3C4D~1.ISO"},
                                     {"/1A2B~1/" + foreign, "/1A2B~1/3C4D~1.ISO"}};
    pick(folder + own);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/1A2B~1/lantern.iso");
    pick(folder + foreign);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/1A2B~1/3C4D~1.ISO");
    EXPECT_EQ(commands(),
              QStringList({"cdvd_info2 \"/1A2B~1/lantern.iso\"", "cdvd_info2 \"/1A2B~1/3C4D~1.ISO\""}));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallSource, AnImageWithoutAnyNameInTheCodePageIsToldAndTheSourceStays) {
    pick("/games/lantern.iso");
    const QString image = QString::fromUtf8("/games/\xe3\x82\xb2.iso");
    ports.folders.namesInCodePage = {{image, ""}};
    pick(image);
    EXPECT_EQ(ports.dialogs.messageTexts(),
              QStringList(image +
                          " cannot be used: its name has letters that tarnwell.exe and the files of "
                          "settings cannot hold, and there is no short name for it. Rename it, or choose "
                          "another."));
    EXPECT_EQ(commands().size(), 1);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/lantern.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
}

TEST_F(InstallSource, ALongPathShowsItsEnd) {
    pick("/games/" + QString(300, 'x') + "/My Game.iso");
    EXPECT_EQ(frmMain.txtISO.selectionStart, frmMain.txtISO.text.get().size());
}

TEST_F(InstallSource, TheFileDialogStartsInTheFolderOfTheSettings) {
    store("DefaultISO", "/games/");
    pick("/games/a.iso");
    ASSERT_EQ(ports.dialogs.openFileRequests.size(), 1u);
    EXPECT_EQ(ports.dialogs.openFileRequests[0].title, "Select Game Image");
    EXPECT_EQ(ports.dialogs.openFileRequests[0].folder, "/games/");
    EXPECT_EQ(ports.dialogs.openFileRequests[0].extension, "*.iso");
    EXPECT_TRUE(ports.dialogs.openFileRequests[0].mustExist);
    EXPECT_EQ(ports.dialogs.openFileRequests[0].filter,
              "ISO Files (*.iso)|*.iso|Nero Burning Image (*.nrg)|*.nrg|RecordNow! Global Image (*.gi)|*.gi|"
              "Sony CD/DVD Generator's Intermediate (*.iml)|*.iml|");
}

TEST_F(InstallSource, CancellingTheFileDialogClearsThePage) {
    pick("/games/a.iso");
    frmMain.cmbType.listIndex = 0;
    ui::click(frmMain.cmdISO);
    EXPECT_EQ(frmMain.txtISO.text.get(), "");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "");
    EXPECT_EQ(frmMain.cmbType.text(), "DVD-ROM");
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallSource, CancellingTheFileDialogLeavesTheFlagsAndTheHiddenSize) {
    pick("/games/a.iso");
    checkFlags({0, 7});
    ui::click(frmMain.cmdISO);
    EXPECT_EQ(checkedFlags(), "10000001");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
}

TEST_F(InstallSource, AnImageThatTheToolCannotReadLeavesThePageToTheUser) {
    answerDiscInfoWith("bad ISOFS.\r\n");
    pick("/games/broken.iso");
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/broken.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(InstallSource, ATooShortAnswerAboutAnImageIsPassedOver) {
    answerDiscInfoWith("DVD 4193280KB\r\n");
    pick("/games/odd.iso");
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(InstallSource, ATooShortAnswerAboutADiscIsToldOnce) {
    answerDiscInfoWith("DVD 4193280KB\r\n");
    ui::click(frmMain.optOptical);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_FALSE(program.shared().blnDiscInfo);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(InstallSource, ASingleDriveWithADiscIsChosenAndReadAtOnce) {
    ui::click(frmMain.optOptical);
    EXPECT_EQ(commands(), QStringList({"query", "cdvd_info2 E:"}));
    EXPECT_EQ(frmMain.cmbOptical.text(), "cd1:  [4.38GB]");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_TRUE(frmMain.cmdMakeISO.enabled);
    EXPECT_FALSE(frmMain.txtISO.enabled);
    EXPECT_FALSE(frmMain.cmdISO.enabled);
}

TEST_F(InstallSource, TwoDrivesWithDiscsLeaveTheChoiceToTheUser) {
    answerQueryWith(kTwoDrives);
    ui::click(frmMain.optOptical);
    EXPECT_EQ(commands(), QStringList("query"));
    EXPECT_EQ(frmMain.cmbOptical.listIndex, -1);
    ui::choose(frmMain.cmbOptical, 0);
    EXPECT_EQ(commands().last(), "cdvd_info2 D:");
}

TEST_F(InstallSource, WithoutADiscTheSourceFallsBackToTheImage) {
    answerQueryWith(kNoDrives);
    ui::click(frmMain.optOptical);
    EXPECT_EQ(ports.dialogs.messageTexts(),
              QStringList("There were no game disks found in any of your optical drives."));
    EXPECT_TRUE(frmMain.optISO.value);
    EXPECT_TRUE(frmMain.cmdISO.enabled);
    EXPECT_FALSE(frmMain.cmbOptical.enabled);
}

TEST_F(InstallSource, OpticalWithoutTheToolChangesNothing) {
    pick("/games/a.iso");
    removeTool();
    ui::click(frmMain.optOptical);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_EQ(frmMain.txtISO.text.get(), "/games/a.iso");
    EXPECT_TRUE(frmMain.cmdISO.enabled);
    EXPECT_FALSE(frmMain.cmbOptical.enabled);
}

TEST_F(InstallSource, GoingToTheDrivesEmptiesThePageButNotTheHiddenSize) {
    answerQueryWith(kTwoDrives);
    answerDiscInfoWith(kDualLayerDvd);
    pick("/games/a.iso");
    frmMain.cmbType.listIndex = 0;
    EXPECT_TRUE(frmMain.lblDVD9.visible);
    ui::click(frmMain.optOptical);
    expectPageReset(frmMain);
    EXPECT_TRUE(frmMain.cmbOptical.enabled);
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
}

TEST_F(InstallSource, TheDrivesAreListedAnewEachTime) {
    answerQueryWith(kTwoDrives);
    ui::click(frmMain.optOptical);
    ui::click(frmMain.optISO);
    EXPECT_EQ(frmMain.cmbOptical.listCount(), 2);
    ui::click(frmMain.optOptical);
    EXPECT_EQ(frmMain.cmbOptical.listCount(), 2);
}

TEST_F(InstallSource, ThePointerIsTheHourglassWhileTheDrivesAreSought) {
    watchPointerDuring("query", kTwoDrives);
    ui::click(frmMain.optOptical);
    expectHourglassInBetween();
}

TEST_F(InstallSource, ThePointerIsTheHourglassWhileADiscIsRead) {
    answerQueryWith(kTwoDrives);
    ui::click(frmMain.optOptical);
    watchPointerDuring("cdvd_info2", kDvd);
    ui::choose(frmMain.cmbOptical, 0);
    expectHourglassInBetween();
}

TEST_F(InstallSource, ThePointerIsTheHourglassWhileAnImageIsRead) {
    watchPointerDuring("cdvd_info2", kDvd);
    pick("/games/a.iso");
    expectHourglassInBetween();
}

TEST_F(InstallSource, GoingBackToTheImageEmptiesTheNamesAndLeavesTheSizeAndTheType) {
    answerDiscInfoWith(kDualLayerDvd);
    ui::click(frmMain.optOptical);
    frmMain.cmbType.listIndex = 0;
    EXPECT_TRUE(frmMain.lblDVD9.visible);
    ui::click(frmMain.optISO);
    EXPECT_EQ(frmMain.cmbOptical.listIndex, -1);
    EXPECT_EQ(frmMain.cmbOptical.listCount(), 1);
    EXPECT_FALSE(frmMain.cmbOptical.enabled);
    EXPECT_TRUE(frmMain.cmdISO.enabled);
    EXPECT_TRUE(frmMain.txtISO.enabled);
    EXPECT_EQ(frmMain.txtGameName.text.get(), "");
    EXPECT_EQ(frmMain.txtGameStartup.text.get(), "");
    EXPECT_EQ(frmMain.txtGameSize.text.get(), "4.00GB");
    EXPECT_EQ(frmMain.txtGameSize.tag.get(), "4095");
    EXPECT_EQ(frmMain.cmbType.text(), "CD-ROM");
    EXPECT_FALSE(frmMain.lblDVD9.visible);
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
    EXPECT_FALSE(frmMain.cmdMakeISO.enabled);
}

TEST_F(InstallSource, FlagEightSurvivesAChangeOfTheSource) {
    checkFlags({0, 2, 6, 7});
    EXPECT_EQ(checkedFlags(), "10100011");
    ui::click(frmMain.optOptical);
    EXPECT_EQ(checkedFlags(), "00000001");
    checkFlags({1});
    ui::click(frmMain.optISO);
    EXPECT_EQ(checkedFlags(), "00000001");
}

TEST_F(InstallSource, PickingAnImageClearsFlagsOneToSeven) {
    checkFlags({0, 7});
    pick("/games/a.iso");
    EXPECT_EQ(checkedFlags(), "00000001");
}

TEST_F(InstallSource, AFlagThatIsClickedTwiceIsOff) {
    checkFlags({3, 3});
    EXPECT_EQ(checkedFlags(), "00000000");
}

TEST_F(InstallSource, TheFlagsMenuOpensUnderItsButton) {
    QStringList menus;
    int closings = 0;
    frmMain.menuWanted.connect([&](ui::PopupMenu& menu, const ui::Control& control) {
        menus += menu.name + " below " + control.name;
    });
    frmMain.mnuCompat.closed.connect([&] { ++closings; });
    pick("/games/a.iso");
    ui::click(frmMain.cmdCompat);
    EXPECT_EQ(menus, QStringList("mnuCompat below cmdCompat"));
    ui::click(frmMain.mnuDone);
    EXPECT_EQ(closings, 1);
}

TEST_F(InstallSource, EnterInTheNameActsAsAddToJobQueue) {
    answerTocWith(kTwoGames);
    ui::click(frmMain.cmdAttach);
    int clicks = 0;
    frmMain.cmdAddGame.Click = [&] { ++clicks; };
    EXPECT_FALSE(ui::pressKey(frmMain.txtGameName, 13));
    EXPECT_TRUE(ui::pressKey(frmMain.txtGameName, 'x'));
    EXPECT_EQ(clicks, 1);
}

TEST_F(InstallSource, EnterInTheNameDoesNothingAsLongAsTheButtonIsOff) {
    EXPECT_FALSE(frmMain.cmdAddGame.enabled) << "no disk is listed";
    pick("/games/a.iso");
    EXPECT_FALSE(ui::pressKey(frmMain.txtGameName, 13)) << "the key is swallowed";
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(InstallSource, ADriveThatTheToolDoesNotMapIsToldInPlainWords) {
    answerQueryWith("\tcd0:  4482 MB\r\n");
    ui::click(frmMain.optOptical);
    EXPECT_EQ(
        ports.dialogs.messageTexts(),
        QStringList("tarnwell.exe found the drive cd0: but did not tell which drive of this PC that is, "
                    "so the disc in it cannot be read. Choose \"ISO File\" and then \"Optical Drive\" "
                    "again to have the drives listed anew."));
    EXPECT_EQ(commands(), QStringList("query"));
}

TEST_F(InstallSource, EnterInTheNameIsSwallowedEvenIfTheGameCannotBeAdded) {
    frmMain.cmdAddGame.enabled = true;
    frmMain.cmdAddGame.Click = [] { throw std::runtime_error("no job"); };
    EXPECT_FALSE(ui::pressKey(frmMain.txtGameName, 13));
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
}

TEST_F(InstallSource, TheFlagsButtonFollowsTheImagePath) {
    frmMain.txtISO.text = QString("x.iso");
    EXPECT_TRUE(frmMain.cmdCompat.enabled);
    frmMain.txtISO.text = QString();
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
}

TEST_F(InstallSource, FieldsThatCannotBeTypedInShowNoCaret) {
    ui::focus(frmMain.txtISO);
    ui::focus(frmMain.txtGameSize);
    EXPECT_FALSE(frmMain.txtISO.caretVisible);
    EXPECT_FALSE(frmMain.txtGameSize.caretVisible);
}

} // namespace tarnwell::test

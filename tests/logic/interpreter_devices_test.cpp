#include "interpreter_fixture.h"

namespace tarnwell {
namespace {

const char kTwoDisks[] = "\thdd1:  114473 MB, formatted Playstation 2 HDD\r\n"
                         "\thdd2:   38166 MB, unknown format\r\n"
                         "\thdd3:  238475 MB, formatted Playstation 2 HDD\r\n";

const char kOneDisk[] = "\thdd1:  114473 MB, formatted Playstation 2 HDD\r\n";

class DeviceStage : public InterpreterTest {
protected:
    void queryDisks(const QString& answer) {
        shared.blnQueryHD = true;
        read(answer);
    }
    void queryDrives(const QString& answer) {
        form.cmbOptical.clear();
        shared.blnQueryOptical = true;
        read(answer);
    }
};

TEST_F(DeviceStage, ListsFormattedDisksWithTheFirstChosen) {
    queryDisks(kTwoDisks);
    EXPECT_EQ(form.cmbHD.items(), (QStringList{"hdd1:  [111.8 GB]", "hdd3:  [232.9 GB]"}));
    EXPECT_EQ(form.cmbHD.listIndex, 0);
    EXPECT_FALSE(shared.blnQueryHD);
}

TEST_F(DeviceStage, OffersTheDisksAsCopyTargetsButTheOneInUse) {
    form.optLocal.value = true;
    queryDisks(kTwoDisks);
    EXPECT_EQ(form.mnuHDD[0].caption.get(), "hdd1:  [111.8 GB]");
    EXPECT_EQ(form.mnuHDD[1].caption.get(), "hdd3:  [232.9 GB]");
    EXPECT_TRUE(form.mnuHDD[0].visible);
    EXPECT_TRUE(form.mnuHDD[1].visible);
    EXPECT_FALSE(form.mnuHDD[0].enabled);
    EXPECT_TRUE(form.mnuHDD[1].enabled);
    for (std::size_t i = 2; i < form.mnuHDD.size(); ++i)
        EXPECT_FALSE(form.mnuHDD[i].visible) << i;
}

TEST_F(DeviceStage, OffersNoCopyTargetBesideASingleDisk) {
    form.optLocal.value = true;
    queryDisks(kOneDisk);
    EXPECT_TRUE(form.mnuHDD[0].visible);
    EXPECT_FALSE(form.mnuHDD[0].enabled);
    for (std::size_t i = 1; i < form.mnuHDD.size(); ++i)
        EXPECT_FALSE(form.mnuHDD[i].visible) << i;
}

TEST_F(DeviceStage, OffersACopyTargetAgainThatWasGreyedOrHidden) {
    form.optLocal.value = true;
    queryDisks(kOneDisk);
    form.optLAN.value = true;
    queryDisks(kTwoDisks);
    for (const std::size_t i : {0u, 1u}) {
        EXPECT_TRUE(form.mnuHDD[i].visible) << i;
        EXPECT_TRUE(form.mnuHDD[i].enabled) << i;
    }
}

TEST_F(DeviceStage, ListsASixthDiskWithoutACopyTarget) {
    QString answer;
    for (int i = 1; i <= 6; ++i)
        answer += QStringLiteral("\thdd%1:  1024 MB, formatted Playstation 2 HDD\r\n").arg(i);
    queryDisks(answer);
    EXPECT_EQ(form.cmbHD.listCount(), 6);
    EXPECT_EQ(form.mnuHDD[4].caption.get(), "hdd5:  [1.0 GB]");
}

TEST_F(DeviceStage, OffersNoCopyTargetWhenThereIsNoDisk) {
    queryDisks("\thdd1:  1024 MB, unknown format\r\n");
    EXPECT_EQ(form.cmbHD.listCount(), 0);
    EXPECT_FALSE(form.mnuHDD[0].visible);
}

TEST_F(DeviceStage, BoundsTheSizeByTheLastMb) {
    queryDisks("\thdd1:  2048MB of 4096 MB, formatted Playstation 2 HDD");
    queryDisks("\tMB disk:  3072 MB, formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.items(), (QStringList{"hdd1:  [2.0 GB]", "MB disk:  [3.0 GB]"}));
}

TEST_F(DeviceStage, ReadsTheWholeNumberWhetherItTouchesItsUnitOrNot) {
    queryDisks("\thdd1:  20480MB, formatted Playstation 2 HDD\r\n"
               "\thdd2:  20480 MB, formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.items(), (QStringList{"hdd1:  [20.0 GB]", "hdd2:  [20.0 GB]"}));
}

TEST_F(DeviceStage, ReadsTheWholeNumberBehindASingleBlank) {
    queryDisks("\thdd1: 20480MB, formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.items(), QStringList{"hdd1:  [20.0 GB]"});
}

TEST_F(DeviceStage, ShowsADiskWithoutANumberAsEmpty) {
    queryDisks("\thdd1:   MB, formatted Playstation 2 HDD\r\n\thdd2: formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.items(), (QStringList{"hdd1:  [.0 GB]", "hdd2:  [.0 GB]"}));
}

TEST_F(DeviceStage, KeepsTheColonOfATwoDigitDisk) {
    queryDisks("\thdd10:  1024 MB, formatted Playstation 2 HDD");
    EXPECT_EQ(form.cmbHD.text(), "hdd10:  [1.0 GB]");
}

TEST_F(DeviceStage, SurvivesALineWithoutANameOrOfGreatLength) {
    queryDisks("formatted Playstation 2 HDD\r\n\thdd1:  1024 MB" + QString(300, 'x') +
               "formatted Playstation 2 HDD\r\n");
    EXPECT_EQ(form.cmbHD.items(), (QStringList{"  [.0 GB]", "hdd1:  [1.0 GB]"}));
}

TEST_F(DeviceStage, AddsToTheDisksOfTheSettingsWindow) {
    const ui::ComboBox& disks = shared.frmSettings->cmbHD;
    for (const char* answer : {"\thdd1:  1024 MB, unknown format\r\n", kTwoDisks}) {
        shared.blnQuerySettings = true;
        read(answer);
        EXPECT_FALSE(shared.blnQuerySettings);
    }
    EXPECT_EQ(
        disks.items(),
        (QStringList{"hdd1:  [1.0 GB] - Unknown Format", "hdd1:  [111.8 GB] - Playstation2 Formatted",
                     "hdd2:  [37.3 GB] - Unknown Format", "hdd3:  [232.9 GB] - Playstation2 Formatted"}));
    EXPECT_EQ(disks.listIndex, 0);
}

TEST_F(DeviceStage, TakesOnlyNamesBehindATabForDisksOfTheSettingsWindow) {
    shared.blnQuerySettings = true;
    read("  hdd1:  1024 MB, formatted Playstation 2 HDD\r\n"
         "\tcd0:  700 MB\r\n"
         "\thdd2:  1024 MB, unknown format\r\n");
    EXPECT_EQ(shared.frmSettings->cmbHD.items(), QStringList{"hdd2:  [1.0 GB] - Unknown Format"});
}

TEST_F(DeviceStage, EndsTheQueryOnAnEmptyAnswer) {
    queryDisks("");
    EXPECT_FALSE(shared.blnQueryHD);
    EXPECT_EQ(form.cmbHD.listCount(), 0);
}

TEST_F(DeviceStage, ListsDrivesWithADisc) {
    queryDrives("\tcd0:  4482 MB\r\n\tcd1:\r\n\tcd2:  700 MB\r\n");
    EXPECT_EQ(form.cmbOptical.items(), (QStringList{"cd0:  [4.38GB]", "cd2:  [.68GB]"}));
    EXPECT_EQ(form.cmbOptical.listIndex, -1);
    EXPECT_FALSE(shared.blnQueryOptical);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(DeviceStage, TakesASizeThatTouchesItsUnitForNoDisc) {
    queryDrives("\tcd0:  4482MB\r\n\tcd1:  700 MB\r\n");
    EXPECT_EQ(form.cmbOptical.items(), QStringList{"cd1:  [.68GB]"});
}

TEST_F(DeviceStage, TakesOnlyTheToolsOwnNamesBehindATabForDrives) {
    queryDrives("\thdd1:  1024 MB, formatted Playstation 2 HDD\r\n"
                "  cd0:  700 MB\r\n"
                "\tcd1:  700 MB\r\n"
                "via SPTI:\r\n"
                "\tD:  700 MB\r\n");
    EXPECT_EQ(form.cmbOptical.items(), QStringList{"cd1:  [.68GB]"});
}

TEST_F(DeviceStage, MapsNoLineInFrontOfTheHeaderOfTheMap) {
    form.cmbOptical.tag = "old,";
    queryDrives("via ASPI:\r\nnot SPTI:\r\n\tC:  700 MB\r\n\tcd0:\r\n");
    EXPECT_EQ(form.cmbOptical.tag.get(), "old,");
    queryDrives("via ASPI:\r\n\tC:  700 MB\r\nvia SPTI:\r\n\tD:\r\n\tE:  700 MB\r\nno more drives");
    EXPECT_EQ(form.cmbOptical.tag.get(), "0,E:,");
}

TEST_F(DeviceStage, MapsTheDrivesToTheSystemsLetters) {
    form.cmbOptical.tag = "old,";
    queryDrives("\tcd0:  4482 MB\r\n\tcd1:\r\nvia SPTI:\r\n\tD:  4482MB\r\n\tE:\r\nend\r\n");
    EXPECT_EQ(form.cmbOptical.tag.get(), "D:,0,");
    EXPECT_EQ(form.cmbOptical.listCount(), 1);
}

TEST_F(DeviceStage, KeepsTheMapWhenNoneIsPrinted) {
    form.cmbOptical.tag = "D:,";
    queryDrives("\tcd0:  4482 MB\r\n");
    EXPECT_EQ(form.cmbOptical.tag.get(), "D:,");
}

TEST_F(DeviceStage, GoesBackToImagesWhenNoDriveHoldsADisc) {
    form.optOptical.value = true;
    queryDrives("\tcd0:\r\n");
    EXPECT_TRUE(form.optISO.value);
    EXPECT_EQ(messages(), QStringList{"There were no game disks found in any of your optical drives."});
    EXPECT_EQ(outside.dialogs.messages.front().icon, MessageIcon::Exclamation);
    EXPECT_FALSE(shared.blnQueryOptical);
}

TEST_F(DeviceStage, HasGoneBackToImagesWhenItTellsOfMissingDiscs) {
    form.optOptical.value = true;
    bool images = false;
    bool stillAsked = false;
    outside.dialogs.whileOpen = [&] {
        images = form.optISO.value;
        stillAsked = shared.blnQueryOptical;
    };
    queryDrives("");
    EXPECT_TRUE(images);
    EXPECT_TRUE(stillAsked);
}

TEST_F(DeviceStage, SaysNothingOfMissingDiscsWhileImagesAreTheSource) {
    queryDrives("");
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_FALSE(shared.blnQueryOptical);
}

TEST_F(DeviceStage, EmptiesAndHidesTheCopyTargetsOnADriveQuery) {
    queryDisks(kTwoDisks);
    queryDrives("\tcd0:  4482 MB\r\n");
    EXPECT_EQ(form.mnuHDD[0].caption.get(), "");
    for (const ui::MenuEntry& target : form.mnuHDD)
        EXPECT_FALSE(target.visible) << target.name.toStdString();
    EXPECT_EQ(form.cmbHD.listCount(), 2);
}

} // namespace
} // namespace tarnwell

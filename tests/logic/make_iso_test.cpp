#include "logic/game_list_fixture.h"

#include <QDir>

namespace tarnwell::test {

namespace {

/// A disc has been read from the only drive.
struct MakeIso : GameListTest {
    MakeIso() {
        answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
        answerDiscInfoWith("DVD 4193280KB \"LANTERN\" \"SLUS_990.71\"\r\n");
        ui::click(frmMain.optInstall);
        ui::click(frmMain.optOptical);
    }

    void saveAs(const QString& file) {
        ports.dialogs.saveFileAnswers.push_back(file);
        ui::click(frmMain.cmdMakeISO);
    }
};

} // namespace

TEST_F(MakeIso, QueuesAJobAndStartsNothing) {
    const qsizetype before = commands().size();
    saveAs("/games/lantern.iso");
    expectQueued({"Make ISO", "E:", "/games/lantern.iso", "LANTERN"}, "dump E: /games/lantern.iso");
    EXPECT_EQ(commands().size(), before);
    EXPECT_FALSE(QFile::exists("/games/lantern.iso"));
}

TEST_F(MakeIso, ThePageStaysForAnInstall) {
    ui::click(frmMain.mnuFlags[1]);
    saveAs("/games/lantern.iso");
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_EQ(frmMain.cmbOptical.listIndex, 0);
    EXPECT_TRUE(frmMain.mnuFlags[1].checked);
    EXPECT_TRUE(frmMain.cmdMakeISO.enabled);
}

TEST_F(MakeIso, TheDialogProposesTheNameOfTheGame) {
    store("DefaultISO", "/my images");
    ui::type(frmMain.txtGameName, "Lantern and Quill");
    saveAs("/my images/Lantern and Quill.iso");
    const SaveFileRequest& request = ports.dialogs.saveFileRequests.at(0);
    EXPECT_EQ(request.fileName, "Lantern and Quill.iso");
    EXPECT_EQ(request.folder, "/my images");
    EXPECT_EQ(request.extension, "*.iso");
    EXPECT_EQ(request.title, "Save Disc Image As");
    EXPECT_TRUE(request.askBeforeOverwriting);
    EXPECT_EQ(request.filter, "ISO Files (*.iso)|*.iso|CUE Files (*.cue)|*.cue|Nero Burning Image "
                              "(*.nrg)|*.nrg|RecordNow! Global Image (*.gi)|*.gi|Sony CD/DVD "
                              "Generator's Intermediate (*.iml)|*.iml|");
    EXPECT_EQ(commandsOfJobs(), QStringList("dump E: \"/my images/Lantern and Quill.iso\""));
}

TEST_F(MakeIso, AFolderOutsideTheCodePageIsKnownByItsShortName) {
    const QString folder = QString::fromUtf8("/\xe3\x82\xb2/");
    ports.folders.namesInCodePage = {{folder, "/1A2B~1/"}};
    saveAs(folder + "lantern.iso");
    expectQueued({"Make ISO", "E:", "/1A2B~1/lantern.iso", "LANTERN"}, "dump E: /1A2B~1/lantern.iso");
}

TEST_F(MakeIso, ANameOutsideTheCodePageIsToldAndTheFileOfThatNameStays) {
    const QString image = path(QString::fromUtf8("\xe3\x82\xb2.iso"));
    QFile old(image);
    ASSERT_TRUE(old.open(QFile::WriteOnly));
    ports.folders.namesInCodePage = {{image, path("1A2B~1.ISO")}};
    saveAs(image);
    EXPECT_TRUE(lastMessage().startsWith(image + " cannot be used: "));
    EXPECT_TRUE(QFile::exists(image));
    expectNothingQueued();
}

TEST_F(MakeIso, APathWithoutABlankStandsBare) {
    saveAs("/games/lantern.iso");
    EXPECT_FALSE(commandsOfJobs().first().contains('"'));
}

TEST_F(MakeIso, AMissingToolIsTold) {
    removeTool();
    saveAs("/games/lantern.iso");
    EXPECT_EQ(lastMessage(),
              "tarnwell.exe was not found. Place it in the same directory as this program and try again.");
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    expectNothingQueued();
}

TEST_F(MakeIso, ANameOfBlanksIsRefused) {
    ui::type(frmMain.txtGameName, "   ");
    saveAs("/games/lantern.iso");
    EXPECT_EQ(lastMessage(), "Please enter a name for the game.");
    EXPECT_TRUE(ports.dialogs.saveFileRequests.empty());
    expectNothingQueued();
}

TEST_F(MakeIso, ANameWithBlanksRoundItIsTakenAsItStands) {
    ui::type(frmMain.txtGameName, " Lantern ");
    saveAs("/games/lantern.iso");
    EXPECT_EQ(ports.dialogs.saveFileRequests.at(0).fileName, " Lantern .iso");
    EXPECT_EQ(frmMain.lstJob.row(0).subItems[3], " Lantern ");
}

TEST_F(MakeIso, ACancelledDialogChangesNothing) {
    writeFile("old.iso", "an old image");
    ui::click(frmMain.cmdMakeISO);
    saveAs("");
    expectNothingQueued();
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(QFile::exists(path("old.iso")));
}

TEST_F(MakeIso, AnOldFileGoesAtOnceAndNoOther) {
    writeFile("old.iso", "an old image");
    writeFile("other.iso", "another image");
    saveAs(path("old.iso"));
    EXPECT_FALSE(QFile::exists(path("old.iso")));
    EXPECT_TRUE(QFile::exists(path("other.iso")));
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(MakeIso, WildCardsInANameDeleteNothing) {
    writeFile("old.iso", "an old image");
    saveAs(path("*.iso"));
    EXPECT_TRUE(QFile::exists(path("old.iso")));
}

TEST_F(MakeIso, WhatCannotBeDeletedIsLeftToTheTool) {
    ASSERT_TRUE(QDir(ports.folders.folder).mkdir("folder"));
    saveAs(path("folder"));
    EXPECT_TRUE(QDir(path("folder")).exists());
    saveAs(path("tarnwell.exe") + "/below a file.iso");
    EXPECT_TRUE(QFile::exists(path("tarnwell.exe")));
    EXPECT_EQ(frmMain.lstJob.count(), 2);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(MakeIso, ADriveThatTheLastQueryDoesNotKnowLeavesAGapInTheJob) {
    frmMain.cmbOptical.tag = QString();
    saveAs("/games/lantern.iso");
    expectQueued({"Make ISO", "", "/games/lantern.iso", "LANTERN"}, "dump  /games/lantern.iso");
}

TEST_F(MakeIso, ADriveWithoutALetterGoesByTheToolsName) {
    frmMain.cmbOptical.tag = QString("0,");
    saveAs("/games/lantern.iso");
    EXPECT_EQ(commandsOfJobs(), QStringList("dump cd0: /games/lantern.iso"));
}

TEST_F(MakeIso, ALongNameInAnyAlphabetArrivesWhole) {
    ui::type(frmMain.txtGameName, kLongName);
    saveAs("/games/" + kLongName + ".iso");
    EXPECT_EQ(ports.dialogs.saveFileRequests.at(0).fileName, QString(kLongName).replace('"', '-') + ".iso");
    EXPECT_EQ(commandsOfJobs(), QStringList("dump E: \"/games/" + kLongName + ".iso\""));
}

TEST_F(MakeIso, NoBalloonIfTheUserWantsNone) {
    store("BalloonTips", "1");
    saveAs("/games/lantern.iso");
    EXPECT_EQ(balloons(), QStringList());
    EXPECT_EQ(frmMain.lstJob.count(), 1);
}

TEST_F(MakeIso, TheRunningJobShowsTheFileWithoutItsFolder) {
    saveAs("C:\\my images\\lantern.iso");
    ports.launcher.on("tarnwell.exe dump", {.output = {{"100%\r", 100}}, .endsAtMs = 200});
    ui::click(frmMain.optJobQueue);
    ui::click(frmMain.cmdStart);
    EXPECT_EQ(frmStatus->lblJob.caption.get(), "Creating ISO File [lantern.iso]");
    EXPECT_EQ(frmMain.lstJob.row(0).text, "Complete");
}

} // namespace tarnwell::test

#include "logic/install_fixture.h"
#include "ui/version.h"

/// The order in which an install that is not queued goes about its work.
namespace tarnwell::test {

namespace {

const QString kTitle = " Tarnwell GUI v" TARNWELL_VERSION " by mirelane";

/// The windows write into the journal, too.
struct InstallSteps : InstallTest {
    InstallSteps() {
        answerInstallWith({.output = {{"100%\r", 1000}}, .endsAtMs = 1100});
        note(frmMain.visible, "main window");
        note(frmStatus->visible, "status window");
        note(frmMain.cmdAttach.enabled, "use of the main window");
        frmMain.txtISO.text.changed.connect([this] { ports.journal += "page emptied"; });
        ports.journal.clear();
    }

    void note(ui::Property<bool>& property, const QString& what) {
        property.changed.connect(
            [this, &property, what] { ports.journal += what + (property ? " on" : " off"); });
    }
};

} // namespace

TEST_F(InstallSteps, ComeOneAfterTheOther) {
    store("TurnOffPS2", "1");
    store("TurnOffPC", "1");
    program.shared().frmSettings->chkStatusServer.value = 1;
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(journal(),
              Journal({"balloon Installing LANTERN", "use of the main window off", "status window on",
                       "main window off", "listen", "balloon Installing [LANTERN] to [192.168.0.10]",
                       "run inject_dvd 192.168.0.10 LANTERN /games/lantern.iso SLUS_990.71", "tip 100%",
                       "page emptied", "close", "status window off", "use of the main window on",
                       "tip " + kTitle, "balloon Installation of LANTERN complete!",
                       "run poweroff 192.168.0.10", "shut down", "run query", "run tarn_toc 192.168.0.10"}));
}

TEST_F(InstallSteps, TheStatusWindowTellsOfTheJobAndOffersTheChoicesWhenItOpens) {
    store("TurnOffPS2", "1");
    store("StandbyPC", "1");
    frmMain.left = 1000;
    int opened = 0;
    frmStatus->visible.changed.connect([&] {
        if (!frmStatus->visible)
            return;
        ++opened;
        EXPECT_EQ(frmStatus->lblJob.caption.get(), "Installing LANTERN");
        EXPECT_EQ(frmStatus->lblTask.caption.get(), "Currently on Job 1 of 1");
        EXPECT_EQ(frmStatus->chkShutdownPS2.value, 1);
        EXPECT_EQ(frmStatus->chkStandby.value, 1);
        EXPECT_EQ(frmStatus->left, 1000 + frmMain.width / 2 - frmStatus->width / 2);
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(opened, 1);
}

TEST_F(InstallSteps, TheEndOfTheJobBeforeIsNotTakenForTheEndOfThisOne) {
    program.shared().blnJobDone = true;
    ports.pump.after(500, [this] { EXPECT_FALSE(program.shared().blnJobDone); });
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(program.shared().blnJobDone);
}

TEST_F(InstallSteps, TheCancelOfTheInstallBeforeIsForgotten) {
    ports.pump.after(500, [this] { ui::click(frmStatus->cmdStop); });
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons().size(), 2);
    ports.tray.doubleClicked();
    pickImage();
    ui::click(frmMain.cmdInstall);
    EXPECT_EQ(balloons().last(), "Installation of LANTERN complete!");
}

TEST_F(InstallSteps, AfterADiscTheNextOneHasToBeChosen) {
    answerQueryWith("\tcd0:  4482 MB\r\nvia SPTI:\r\n\tE: disc 4482 MB\r\n");
    ui::click(frmMain.optOptical);
    ui::click(frmMain.cmdInstall);
    EXPECT_TRUE(frmMain.optOptical.value);
    EXPECT_EQ(frmMain.cmbOptical.listIndex, -1);
}

TEST_F(InstallSteps, AGameForTheQueueIsToldOfOnceThePageIsEmptied) {
    ui::click(frmMain.cmdAddGame);
    EXPECT_EQ(journal(), Journal({"page emptied", "balloon Job added to job queue"}));
}

} // namespace tarnwell::test

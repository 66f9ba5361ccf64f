#include "support/gtest_qt.h"
#include "ui/frm_about.h"
#include "ui/frm_main.h"
#include "ui/frm_settings.h"
#include "ui/frm_status.h"
#include "ui/version.h"

#include <gtest/gtest.h>

using namespace tarnwell::ui;

namespace {

QStringList namesWhere(const Form& form, const std::function<bool(const Control&)>& holds) {
    QStringList names;
    for (const Control* control : form.controls()) {
        if (holds(*control))
            names += control->name;
    }
    return names;
}

QStringList captions(const PopupMenu& menu) {
    QStringList all;
    for (const MenuEntry* entry : menu.entries())
        all += entry->caption;
    return all;
}

} // namespace

TEST(FrmMain, StartsWithTheButtonsThatNeedADeviceOff) {
    const FrmMain frmMain;
    EXPECT_EQ(namesWhere(frmMain, [](const Control& control) { return !control.enabled; }).join(' '),
              "cmbOptical cmdCompat cmdInstall cmdAddGame cmdMakeISO cmdDelete cmdSaveList cmdBackupPC "
              "cmdBackupPS2 cmdBackupHDD cmdStart cmdRemove cmdClear tmrCompat");
}

TEST(FrmMain, StartsOnTheInstallPageInNetworkMode) {
    const FrmMain frmMain;
    EXPECT_EQ(namesWhere(frmMain, [](const Control& control) { return !control.visible; }).join(' '),
              "cmbHD lblDVD9 fmBrowse fmJob");
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_TRUE(frmMain.optInstall.value);
    EXPECT_TRUE(frmMain.optISO.value);
    EXPECT_EQ(frmMain.cmbType.text(), "DVD-ROM");
    EXPECT_EQ(frmMain.cmdAttach.width, 1215);
}

TEST(FrmMain, CarriesItsCaption) {
    EXPECT_EQ(FrmMain().caption.get(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
}

TEST(FrmMain, HasEveryMenuWithItsEntries) {
    const FrmMain frmMain;
    EXPECT_EQ(captions(frmMain.mnuCompat).join('|'),
              "1: Slow HDD Access|2: No DVD9 Support|3: Kill HD Loader|4: Date/time fix 2|5: Date/time fix 3|"
              "6: No Network Support|7: Disable CzC Patch|8: Soul Calibur 2 / Suikoden V|-|Done");
    EXPECT_EQ(captions(frmMain.mnuBackup), QStringList({"", "", "", "", ""}));
    EXPECT_EQ(captions(frmMain.mnuDelete), QStringList({"Delete Now", "Add Delete to Job Queue"}));
    EXPECT_EQ(captions(frmMain.mnuSounds),
              QStringList({"Sound when task completes: [none]", "Sound when all tasks complete: [none]"}));
    EXPECT_EQ(captions(frmMain.mnuSystray), QStringList({"Settings && Tools", "-", "Minimize", "-", "Exit"}));
}

TEST(FrmMain, GivesEveryControlThatAUserWorksWithSomethingToBeCalled) {
    const FrmMain frmMain;
    const auto nameless = namesWhere(frmMain, [](const Control& control) {
        const bool needsName = control.kind == Kind::TextBox || control.kind == Kind::ComboBox ||
                               control.kind == Kind::ListView || control.kind == Kind::PictureBox;
        return needsName && control.accessibleName.isEmpty();
    });
    EXPECT_EQ(nameless, QStringList());
}

TEST(FrmSettings, StartsOnItsFirstPage) {
    const FrmSettings frmSettings;
    EXPECT_EQ(frmSettings.caption.get(), " Settings & Tools");
    EXPECT_EQ(frmSettings.width, 5400);
    EXPECT_EQ(frmSettings.height, 4410);
    EXPECT_EQ(frmSettings.TabStrip.captions, QStringList({"Tarnwell", "GUI", "Tools"}));
    EXPECT_EQ(frmSettings.TabStrip.caption(), "Tarnwell");
    EXPECT_EQ(namesWhere(frmSettings, [](const Control& control) { return !control.visible; }).join(' '),
              "fmGUI fmTools txtDefaultPath");
    EXPECT_EQ(namesWhere(frmSettings, [](const Control& control) { return !control.enabled; }).join(' '),
              "cmdForecolor cmdBackcolor cmdFormat cmdBackupTOC cmdRestoreTOC");
    EXPECT_EQ(namesWhere(frmSettings,
                         [](const Control& control) {
                             return control.kind == Kind::CheckBox &&
                                    static_cast<const CheckBox&>(control).value == 1;
                         })
                  .join(' '),
              "chkLimit28bit chkEnableASPI");
    for (const Frame* page : {&frmSettings.fmTarnwell, &frmSettings.fmGUI, &frmSettings.fmTools}) {
        EXPECT_EQ(page->left, 240);
        EXPECT_EQ(page->top, 480);
    }
}

TEST(FrmStatus, StartsWithNothingKnown) {
    const FrmStatus frmStatus;
    EXPECT_EQ(frmStatus.caption.get(), " Status");
    EXPECT_EQ(frmStatus.width, 4935);
    EXPECT_EQ(frmStatus.height, 3930);
    EXPECT_EQ(frmStatus.lblSpeed.caption.get(), "Speed: n/a");
    EXPECT_EQ(frmStatus.lblRemaining.caption.get(), "Time Remaining: n/a");
    EXPECT_EQ(frmStatus.lblFinish.caption.get(), "  When all jobs are complete:");
    EXPECT_EQ(frmStatus.cmdStop.caption.get(), "Cancel");
    EXPECT_EQ(frmStatus.picCurrent.tag.get(), "");
}

TEST(FrmAbout, NamesTheVersionsThatGoWithTheProgram) {
    const FrmAbout frmAbout;
    EXPECT_EQ(frmAbout.caption.get(), " About...");
    EXPECT_EQ(frmAbout.Label1.caption.get(), "Tarnwell GUI");
    EXPECT_EQ(frmAbout.Label3.caption.get(), "by mirelane");
    EXPECT_EQ(frmAbout.lblThread.caption.get(), "GUI Release Thread");
    EXPECT_EQ(frmAbout.Label4.caption.get(), "tarnwell v0.8.6");
    EXPECT_EQ(frmAbout.Label5.caption.get(), "tarnd_svr v0.8.5");
    EXPECT_EQ(frmAbout.txtAbout.text.get(), "");
    EXPECT_TRUE(frmAbout.txtAbout.readOnly && frmAbout.txtAbout.multiLine);
}

TEST(FrmAbout, HoldsEachOfItsLinksInAFrameOfItsOwn) {
    const FrmAbout frmAbout;
    EXPECT_EQ(namesWhere(frmAbout,
                         [](const Control& control) {
                             return control.kind == Kind::Label && static_cast<const Label&>(control).link;
                         })
                  .join(' '),
              "lblCommunitySite lblThread Label4 Label5");
    EXPECT_EQ(frmAbout.lblCommunitySite.container, &frmAbout.Frame1);
    EXPECT_EQ(frmAbout.lblThread.container, &frmAbout.Frame2);
    EXPECT_EQ(frmAbout.Label4.container, &frmAbout.Frame3);
    EXPECT_EQ(frmAbout.Label5.container, &frmAbout.Frame4);
}

#include "app/navigation.h"

namespace tarnwell {

using ui::FrmMain;

Navigation::Navigation(Shared& shared) : shared_(shared) {
    FrmMain& frmMain = shared_.frmMain;
    frmMain.optInstall.Click = [&frmMain] {
        frmMain.fmInstall.visible = true;
        frmMain.fmBrowse.visible = false;
        frmMain.fmJob.visible = false;
    };
    frmMain.optBrowse.Click = [&frmMain] {
        frmMain.fmInstall.visible = false;
        frmMain.fmBrowse.visible = true;
        frmMain.fmJob.visible = false;
    };
    // The job page covers the others, the navigation included: only cmdControls leads back.
    frmMain.optJobQueue.Click = [&frmMain] { frmMain.fmJob.visible = true; };
    frmMain.cmdControls.Click = [this] { goBackFromJobs(); };
    frmMain.chkOutput.Click = [this] { showActivity(); };
    frmMain.txtOutput.Change = [this] { scrollOutputToEnd(); };
    frmMain.txtOutput.Click = [&frmMain] { frmMain.txtOutput.caretVisible = false; };
}

void Navigation::goBackFromJobs() {
    FrmMain& frmMain = shared_.frmMain;
    if (frmMain.fmInstall.visible)
        frmMain.optInstall.value = true;
    if (frmMain.fmBrowse.visible)
        frmMain.optBrowse.value = true;
}

void Navigation::showActivity() {
    FrmMain& frmMain = shared_.frmMain;
    frmMain.height = frmMain.chkOutput.value == 1 ? FrmMain::kTallHeight : FrmMain::kShortHeight;
    shared_.config.writeNumber("ViewOutput", frmMain.chkOutput.value);
}

void Navigation::scrollOutputToEnd() {
    ui::TextBox& txtOutput = shared_.frmMain.txtOutput;
    const int end = static_cast<int>(txtOutput.text.get().size());
    txtOutput.selectionStart = end;
    txtOutput.selectionLength = end;
    txtOutput.caretVisible = false;
}

} // namespace tarnwell

#include "view/sample_states.h"

#include <array>

namespace tarnwell::view::samples {

namespace {

void append(ui::ListView& list, const QString& label, const QStringList& subItems) {
    list.append({label, subItems, {}, false});
}

} // namespace

void start(ui::FrmMain& form) {
    form.load();
    form.lstHD.columns = std::vector<ui::Column>{
        {"Game Title", 1400}, {"Startup", 1070}, {"Size", 720}, {"Type", 540}, {"Flags", 560}};
    form.lstJob.columns =
        std::vector<ui::Column>{{"Result", 1000}, {"Task", 1125},    {"Source", 1100}, {"Destination", 1375},
                                {"Name", 1700},   {"Startup", 1200}, {"Type", 900},    {"Flags", 1000}};
    form.picDiskSpace.scaleWidth = 100;
    form.picDiskSpace.drawing = ui::PictureBox::Drawing{"0%", 0};
    form.show();
}

void localDisk(ui::FrmMain& form) {
    form.optLocal.value = true;
    form.lblIP.visible = false;
    form.txtIP.visible = false;
    form.cmbHD.visible = true;
    form.cmbHD.addItem("hdd1:  [465.8 GB]");
    form.cmbHD.addItem("hdd2:  [232.9 GB]");
    form.cmbHD.listIndex = 0;
    form.cmdAttach.caption = "Refresh HDD";
    form.cmdAttach.width = 2175;
    form.cmdShutdownPS2.visible = false;
    form.lblDiskSpace.caption = "465.76GB Total - 187.25GB Used - 278.51GB Available";
    form.picDiskSpace.drawing = ui::PictureBox::Drawing{"40%", 40};
}

void games(ui::FrmMain& form, int count) {
    constexpr std::array kTitles{"The Lighthouse Keeper", "Sixty Second Rally & Friends",
                                 "Moonbase <Seven>",      "Paper Dragons",
                                 "Harbour Master 2",      "Night of the Long Trains: The Director's Edition"};
    for (int i = 0; i < count; ++i) {
        append(form.lstHD, kTitles[static_cast<std::size_t>(i) % kTitles.size()],
               {QStringLiteral("SLUS_99%1.%2").arg(i / 100 % 10).arg(i % 100, 2, 10, QChar('0')), "4.37GB",
                i % 3 ? "DVD" : "CD", i % 4 ? "" : "+1+3"});
    }
    form.fmInstall.visible = false;
    form.fmBrowse.visible = true;
    form.optBrowse.value = true;
    form.fmBrowse.caption = QStringLiteral("Browse, Backup, and Delete - %1 Games").arg(count);
    for (ui::Button* button : {&form.cmdDelete, &form.cmdSaveList, &form.cmdBackupPC, &form.cmdBackupPS2})
        button->enabled = true;
    if (count > 1)
        form.lstHD.select(1);
}

void discRead(ui::FrmMain& form) {
    form.txtISO.text = "C:\\Images\\The Lighthouse Keeper.iso";
    form.txtGameName.text = "The Lighthouse Keeper";
    form.txtGameStartup.text = "SLUS_990.12";
    form.txtGameSize.text = "7.91GB";
    form.lblDVD9.visible = true;
    for (ui::Button* button : {&form.cmdCompat, &form.cmdInstall, &form.cmdAddGame, &form.cmdMakeISO})
        button->enabled = true;
}

void jobs(ui::FrmMain& form) {
    append(form.lstJob, "Complete",
           {"Install", "C:\\Images\\keeper.iso", "192.168.0.10", "The Lighthouse Keeper", "SLUS_990.12",
            "DVD-ROM", "+1+3"});
    append(form.lstJob, "Active", {"Backup to PC", "hdd1:", "D:\\dragons.iso", "Paper Dragons", "", "", ""});
    append(form.lstJob, "Pending", {"Delete", "hdd1:", "", "Harbour Master 2", "", "", ""});
    form.lstJob.select(1);
    for (ui::Button* button : {&form.cmdStart, &form.cmdRemove, &form.cmdClear})
        button->enabled = true;
    form.fmJob.visible = true;
    form.optJobQueue.value = true;
}

void activity(ui::FrmMain& form) {
    form.chkOutput.value = 1;
    form.height = ui::FrmMain::kTallHeight;
    form.txtCommand.text = "toc 192.168.0.10";
    form.txtOutput.text = "type     size flags           startup     name\r\n"
                          "DVD 4582400KB                 SLUS_990.12 The Lighthouse Keeper\r\n"
                          "CD   716800KB +1+3            SLUS_990.10 Sixty Second Rally & Friends\r\n"
                          "total 476928MB, used 191744MB, available 285184MB\r\n";
}

void jobRunning(ui::FrmStatus& form) {
    form.lblTask.caption = "Currently on Job 2 of 5";
    form.lblJob.caption =
        "Installing [Night of the Long Trains: The Director's Edition & More] onto Device [192.168.0.10]";
    form.lblSpeed.caption = "Speed: 5.42 MB/sec";
    form.lblRemaining.caption = "Time remaining: 00:11:32";
    form.lblCurrentElapsed.caption = "00:03:17";
    form.lblOverallElapsed.caption = "00:14:59";
    form.picOverall.scaleWidth = 100;
    form.picOverall.drawing = ui::PictureBox::Drawing{"37%", 37};
    form.picCurrent.scaleWidth = 100;
    form.picCurrent.drawing = ui::PictureBox::Drawing{"62%", 62};
    form.chkStandby.value = 1;
    form.show();
}

void settings(ui::FrmSettings& form, ui::FrmSettings::Tab tab) {
    form.txtApplicationData.text = "C:\\Users\\Alex\\AppData\\Roaming\\";
    form.txtDiscDatabase.text = "C:\\Users\\Alex\\AppData\\Roaming\\tarnwell.list";
    form.txtTargetkbps.text = "2300";
    form.txtDefaultISO.text = "D:\\Games\\Images\\";
    form.chkStayOnTop.value = 1;
    form.chkCloseStatus.value = 1;
    form.cmbHD.addItem("hdd1:  [465.8 GB] - Playstation2 Formatted");
    form.cmbHD.addItem("192.168.0.10");
    form.cmbHD.listIndex = 0;
    for (ui::Button* button : {&form.cmdFormat, &form.cmdBackupTOC, &form.cmdRestoreTOC})
        button->enabled = true;
    form.TabStrip.selectedTab = tab;
    form.fmTarnwell.visible = tab == ui::FrmSettings::kTarnwellTab;
    form.fmGUI.visible = tab == ui::FrmSettings::kGuiTab;
    form.fmTools.visible = tab == ui::FrmSettings::kToolsTab;
    form.show();
}

void thanks(ui::FrmAbout& form) {
    form.Label2.caption = "v1.5";
    form.txtAbout.text =
        "Thanks to everyone that contributed ideas and gave bug reports. Special thanks to all "
        "who helped with debugging, and to all who answered everybody's questions, by name.";
    form.show();
}

void ownLook(ui::Form& form) {
    constexpr std::int32_t kIvory = 0xDCF5FA, kPine = 0x2E4A1B;
    form.backColor = kPine;
    for (ui::Control* control : form.controls()) {
        if (control->hasFont() && control->name != "txtOutput")
            control->font = ui::Font{"DejaVu Serif", 11, false, true};
        if (control->hasColors() && control->name != "picDiskSpace") {
            control->foreColor = kIvory;
            control->backColor = kPine;
        }
    }
}

namespace {

QPalette inverted(const QColor& ground, const QColor& field, const QColor& ink, const QColor& off) {
    QPalette dark(ground);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        dark.setColor(role, ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, off);
    dark.setColor(QPalette::PlaceholderText, off);
    dark.setColor(QPalette::Base, field);
    return dark;
}

} // namespace

QPalette darkPalette() {
    QPalette dark =
        inverted(QColor(45, 45, 48), QColor(30, 30, 32), QColor(235, 235, 235), QColor(125, 125, 128));
    dark.setColor(QPalette::Highlight, QColor(42, 110, 200));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(110, 170, 240));
    return dark;
}

QPalette blackPalette() {
    QPalette black = inverted(Qt::black, Qt::black, Qt::white, QColor(63, 242, 63));
    black.setColor(QPalette::Highlight, QColor(26, 235, 255));
    black.setColor(QPalette::HighlightedText, Qt::black);
    black.setColor(QPalette::Link, Qt::yellow);
    return black;
}

} // namespace tarnwell::view::samples

#pragma once

#include "ui/form.h"
#include "ui/list_view.h"

#include <array>

namespace tarnwell::ui {

/// The main window: the device at the left, the install page or the game list at the right, the job queue
/// over both, the tool's activity below. The declarations are the window's control table.
class FrmMain : public Form {
public:
    FrmMain();

    /// Window heights, in twips: without and with the activity frame.
    static constexpr int kShortHeight = 3740;
    static constexpr int kTallHeight = 6365;
    static constexpr int kHddEntries = 5;
    static constexpr int kFlags = 8;
    /// The console's address until the user enters another.
    static constexpr char kFirstAddress[] = "192.168.0.10";

    Frame fmMain{*this,
                 "fmMain",
                 {.caption = "Playstation 2 Device", .left = 120, .top = 0, .width = 4815, .height = 2295}};
    Frame fmDevice{*this, "fmDevice", {.in = &fmMain}};
    OptionButton optLAN{*this, "optLAN", {.in = &fmDevice, .caption = "LAN - Networked PS2", .value = 1}};
    OptionButton optLocal{*this, "optLocal", {.in = &fmDevice, .caption = "Locally connected PS2 HDD"}};
    Label lblIP{*this, "lblIP", {.in = &fmDevice, .caption = "  IP:"}};
    TextBox txtIP{
        *this,
        "txtIP",
        {.in = &fmDevice, .text = kFirstAddress, .accessibleName = "IP address of the PS2 console"}};
    ComboBox cmbHD{*this, "cmbHD", {.in = &fmDevice, .accessibleName = "Local PS2 disk", .visible = false}};
    Button cmdAttach{*this,
                     "cmdAttach",
                     {.in = &fmDevice,
                      .caption = "Refresh PS2",
                      .toolTip = "Refresh the selected device.",
                      .width = 1215}};
    Button cmdShutdownPS2{
        *this,
        "cmdShutdownPS2",
        {.in = &fmDevice, .caption = "Shutdown PS2", .toolTip = "Shutdown the PS2 console."}};
    Frame fmHDDSpace{*this, "fmHDDSpace", {.in = &fmMain, .caption = "HDD Space Information"}};
    PictureBox picDiskSpace{
        *this, "picDiskSpace", {.in = &fmHDDSpace, .accessibleName = "Used disk space", .width = 4335}};
    Label lblDiskSpace{*this, "lblDiskSpace", {.in = &fmHDDSpace, .caption = "(no active device)"}};

    Frame fmNavigation{*this,
                       "fmNavigation",
                       {.caption = "Navigation", .left = 120, .top = 2280, .width = 4815, .height = 975}};
    OptionButton optInstall{*this, "optInstall", {.in = &fmNavigation, .caption = "Install", .value = 1}};
    OptionButton optBrowse{*this, "optBrowse", {.in = &fmNavigation, .caption = "Browse, Backup, Delete"}};
    OptionButton optJobQueue{*this, "optJobQueue", {.in = &fmNavigation, .caption = "Job Queue"}};
    CheckBox chkOutput{*this,
                       "chkOutput",
                       {.in = &fmNavigation,
                        .caption = "View Tarnwell Activity",
                        .toolTip = "View data as it is outputted by tarnwell."}};
    Button cmdSettings{*this, "cmdSettings", {.in = &fmNavigation, .caption = "Settings && Tools"}};
    Button cmdAbout{*this, "cmdAbout", {.in = &fmNavigation, .caption = "About"}};
    Button cmdMinimize{*this,
                       "cmdMinimize",
                       {.in = &fmNavigation,
                        .caption = "Minimize",
                        .toolTip = "Minimize this program to your system tray."}};
    Button cmdExit{
        *this, "cmdExit", {.in = &fmNavigation, .caption = "Exit", .toolTip = "Close the program."}};
    Line Line3{*this, "Line3", {.in = &fmNavigation}};
    Line Line4{*this, "Line4", {.in = &fmNavigation}};

    Frame fmOutput{*this,
                   "fmOutput",
                   {.caption = "Tarnwell Activity", .left = 120, .top = 3360, .width = 9735, .height = 2535}};
    Label lblCommand{*this, "lblCommand", {.in = &fmOutput, .caption = "Command:"}};
    TextBox txtCommand{*this, "txtCommand", {.in = &fmOutput, .accessibleName = "Command", .readOnly = true}};
    TextBox txtOutput{*this,
                      "txtOutput",
                      {.in = &fmOutput,
                       .accessibleName = "Output of tarnwell",
                       .readOnly = true,
                       .multiLine = true,
                       .font = Font{"Courier", 9.75}}};

    Frame fmInstall{
        *this, "fmInstall", {.caption = "Install", .left = 5040, .top = 0, .width = 4815, .height = 3255}};
    OptionButton optISO{
        *this,
        "optISO",
        {.in = &fmInstall, .caption = "ISO File", .toolTip = "Install game from an ISO file.", .value = 1}};
    OptionButton optOptical{
        *this,
        "optOptical",
        {.in = &fmInstall, .caption = "Optical Drive", .toolTip = "Install game from an optical drive."}};
    TextBox txtISO{*this, "txtISO", {.in = &fmInstall, .accessibleName = "ISO file", .readOnly = true}};
    Button cmdISO{*this,
                  "cmdISO",
                  {.in = &fmInstall, .caption = "Browse", .toolTip = "Browse and select an ISO file."}};
    ComboBox cmbOptical{
        *this, "cmbOptical", {.in = &fmInstall, .accessibleName = "Optical drive", .enabled = false}};
    Label lblSource{*this, "lblSource", {.in = &fmInstall, .caption = "Source"}};
    Label lblGameInfo{*this, "lblGameInfo", {.in = &fmInstall, .caption = "Game Information"}};
    Label lblGameName{*this, "lblGameName", {.in = &fmInstall, .caption = "Game Name:"}};
    TextBox txtGameName{*this, "txtGameName", {.in = &fmInstall, .accessibleName = "Game name"}};
    Label lblStartup{*this, "lblStartup", {.in = &fmInstall, .caption = "Startup File:"}};
    TextBox txtGameStartup{*this, "txtGameStartup", {.in = &fmInstall, .accessibleName = "Startup file"}};
    Label lblType{*this, "lblType", {.in = &fmInstall, .caption = "Type:"}};
    ComboBox cmbType{*this,
                     "cmbType",
                     {.in = &fmInstall,
                      .accessibleName = "Type of the disc",
                      .items = {"CD-ROM", "DVD-ROM"},
                      .listIndex = 1}};
    Label lblSize{*this, "lblSize", {.in = &fmInstall, .caption = "Size:"}};
    TextBox txtGameSize{
        *this,
        "txtGameSize",
        {.in = &fmInstall, .accessibleName = "Size of the game", .readOnly = true, .centred = true}};
    Label lblDVD9{*this, "lblDVD9", {.in = &fmInstall, .caption = "*Dual-Layer DVD*", .visible = false}};
    Button cmdCompat{*this,
                     "cmdCompat",
                     {.in = &fmInstall,
                      .caption = "Compatibility Flags",
                      .toolTip = "Select HDLoader compatibility flags.",
                      .enabled = false}};
    Button cmdInstall{
        *this,
        "cmdInstall",
        {.in = &fmInstall, .caption = "Install Now", .toolTip = "Install game now.", .enabled = false}};
    Button cmdAddGame{*this,
                      "cmdAddGame",
                      {.in = &fmInstall,
                       .caption = "Add to Job Queue",
                       .toolTip = "Add game install to job queue.",
                       .enabled = false}};
    Button cmdMakeISO{*this,
                      "cmdMakeISO",
                      {.in = &fmInstall,
                       .caption = "Make ISO",
                       .toolTip = "Make ISO image of the selected game disc.",
                       .enabled = false}};
    Line Line1{*this, "Line1", {.in = &fmInstall}};
    Line Line2{*this, "Line2", {.in = &fmInstall}};

    Frame fmBrowse{*this,
                   "fmBrowse",
                   {.caption = "Browse, Backup, and Delete - 0 Games",
                    .visible = false,
                    .left = 5040,
                    .top = 0,
                    .width = 4815,
                    .height = 3255}};
    ListView lstHD{*this,
                   "lstHD",
                   {.in = &fmBrowse,
                    .accessibleName = "Games on the disk",
                    .multiSelect = true,
                    .editableLabels = true,
                    .columns = {{"Game Title"}, {"Startup"}, {"Size"}, {"Type"}, {"Flags"}}}};
    Button cmdDelete{*this,
                     "cmdDelete",
                     {.in = &fmBrowse, .caption = "Delete", .toolTip = "Delete game.", .enabled = false}};
    Button cmdSaveList{*this,
                       "cmdSaveList",
                       {.in = &fmBrowse,
                        .caption = "Save",
                        .toolTip = "Export the list of games to a file.",
                        .enabled = false}};
    Button cmdBackupPC{*this,
                       "cmdBackupPC",
                       {.in = &fmBrowse,
                        .caption = "Copy to PC",
                        .toolTip = "Backup game to your PC hard-drive.",
                        .enabled = false}};
    Button cmdBackupPS2{*this,
                        "cmdBackupPS2",
                        {.in = &fmBrowse,
                         .caption = "Copy to PS2",
                         .toolTip = "Copy game to a PS2 console over the network.",
                         .enabled = false}};
    Button cmdBackupHDD{*this,
                        "cmdBackupHDD",
                        {.in = &fmBrowse,
                         .caption = "Copy to HDD",
                         .toolTip = "Copy game to a locally connected PS2 formatted HDD.",
                         .enabled = false}};

    Frame fmJob{*this, "fmJob", {.caption = "Job Queue", .visible = false, .width = 9735, .height = 3255}};
    ListView lstJob{
        *this,
        "lstJob",
        {.in = &fmJob,
         .accessibleName = "Jobs",
         .columns = {
             {"Result"}, {"Task"}, {"Source"}, {"Destination"}, {"Name"}, {"Startup"}, {"Type"}, {"Flags"}}}};
    Button cmdStart{*this, "cmdStart", {.in = &fmJob, .caption = "Start Job Queue", .enabled = false}};
    Button cmdRemove{*this, "cmdRemove", {.in = &fmJob, .caption = "Remove Job", .enabled = false}};
    Button cmdClear{*this, "cmdClear", {.in = &fmJob, .caption = "Clear Jobs", .enabled = false}};
    Button cmdControls{*this, "cmdControls", {.in = &fmJob, .caption = "Go Back to Main Window"}};
    Label lblCommandLine{
        *this,
        "lblCommandLine",
        {.in = &fmJob, .caption = "Right mouse-click to view\\edit the command-line for the selected job."}};
    Line Line5{*this, "Line5", {.in = &fmJob}};
    Line Line6{*this, "Line6", {.in = &fmJob}};

    Timer tmrCompat{*this, "tmrCompat", {.enabled = false}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};

    PopupMenu mnuCompat{*this, "mnuCompat", "compat"};
    std::array<MenuEntry, kFlags> mnuFlags{
        MenuEntry{mnuCompat, "mnuFlags(0)", "1: Slow HDD Access", true},
        MenuEntry{mnuCompat, "mnuFlags(1)", "2: No DVD9 Support", true},
        MenuEntry{mnuCompat, "mnuFlags(2)", "3: Kill HD Loader", true},
        MenuEntry{mnuCompat, "mnuFlags(3)", "4: Date/time fix 2", true},
        MenuEntry{mnuCompat, "mnuFlags(4)", "5: Date/time fix 3", true},
        MenuEntry{mnuCompat, "mnuFlags(5)", "6: No Network Support", true},
        MenuEntry{mnuCompat, "mnuFlags(6)", "7: Disable CzC Patch", true},
        MenuEntry{mnuCompat, "mnuFlags(7)", "8: Soul Calibur 2 / Suikoden V", true}};
    MenuEntry mnuBar{mnuCompat, "mnuBar", "-"};
    MenuEntry mnuDone{mnuCompat, "mnuDone", "Done"};

    PopupMenu mnuBackup{*this, "mnuBackup", "backuphdd"};
    std::array<MenuEntry, kHddEntries> mnuHDD{
        MenuEntry{mnuBackup, "mnuHDD(0)", ""}, MenuEntry{mnuBackup, "mnuHDD(1)", ""},
        MenuEntry{mnuBackup, "mnuHDD(2)", ""}, MenuEntry{mnuBackup, "mnuHDD(3)", ""},
        MenuEntry{mnuBackup, "mnuHDD(4)", ""}};

    PopupMenu mnuDelete{*this, "mnuDelete", "deletegame"};
    MenuEntry mnuDeleteNow{mnuDelete, "mnuDeleteNow", "Delete Now"};
    MenuEntry mnuDeleteQueue{mnuDelete, "mnuDeleteQueue", "Add Delete to Job Queue"};

    PopupMenu mnuSounds{*this, "mnuSounds", "sounds"};
    MenuEntry mnuTaskSound{mnuSounds, "mnuTaskSound", "Sound when task completes: [none]"};
    MenuEntry mnuTasksSound{mnuSounds, "mnuTasksSound", "Sound when all tasks complete: [none]"};

    PopupMenu mnuSystray{*this, "mnuSystray", "systraymenu"};
    MenuEntry mnuSettings{mnuSystray, "mnuSettings", "Settings && Tools"};
    MenuEntry mnuBar7{mnuSystray, "mnuBar7", "-"};
    MenuEntry mnuMinimize{mnuSystray, "mnuMinimize", "Minimize"};
    MenuEntry mnuBar5{mnuSystray, "mnuBar5", "-"};
    MenuEntry mnuExit{mnuSystray, "mnuExit", "Exit"};
};

} // namespace tarnwell::ui

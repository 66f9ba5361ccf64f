#pragma once

#include "ui/form.h"

namespace tarnwell::ui {

/// The window for all settings and for the disk tools: three pages behind a tab strip, and the buttons that
/// belong to none. The declarations are the window's control table.
class FrmSettings : public Form {
public:
    FrmSettings();

    /// The tabs, in their order.
    enum Tab { kTarnwellTab, kGuiTab, kToolsTab };

    ui::TabStrip TabStrip{*this,
                          "TabStrip",
                          {.accessibleName = "Pages", .items = {"Tarnwell", "GUI", "Tools"}, .listIndex = 0}};

    Frame fmTarnwell{*this, "fmTarnwell", {.left = 240, .top = 480}};
    Label lblApplicationData{
        *this, "lblApplicationData", {.in = &fmTarnwell, .caption = "Application Data Path:"}};
    TextBox txtApplicationData{
        *this,
        "txtApplicationData",
        {.in = &fmTarnwell, .accessibleName = "Application data path", .readOnly = true}};
    Button cmdApplicationData{
        *this,
        "cmdApplicationData",
        {.in = &fmTarnwell, .caption = "...", .accessibleName = "Choose the application data path"}};
    Label lblDiscDatabase{*this, "lblDiscDatabase", {.in = &fmTarnwell, .caption = "Disc Database File:"}};
    TextBox txtDiscDatabase{
        *this, "txtDiscDatabase", {.in = &fmTarnwell, .accessibleName = "Disc database file"}};
    Button cmdDiskDatabase{
        *this,
        "cmdDiskDatabase",
        {.in = &fmTarnwell, .caption = "...", .accessibleName = "Choose the disc database file"}};
    CheckBox chkToxicOS{*this, "chkToxicOS", {.in = &fmTarnwell, .caption = "Use ToxicOS Partition Naming"}};
    CheckBox chkLimit28bit{*this,
                           "chkLimit28bit",
                           {.in = &fmTarnwell, .caption = "Limit to 28bit  (HDD is <= 128GB)", .value = 1}};
    CheckBox chkEnableASPI{*this, "chkEnableASPI", {.in = &fmTarnwell, .caption = "Enable ASPI", .value = 1}};
    CheckBox chkAutoThrottle{*this, "chkAutoThrottle", {.in = &fmTarnwell, .caption = "Auto-Throttle"}};
    CheckBox chkUseCompression{*this, "chkUseCompression", {.in = &fmTarnwell, .caption = "Use Compression"}};
    Label lblTargetKBPS{*this, "lblTargetKBPS", {.in = &fmTarnwell, .caption = "Target kbps:"}};
    TextBox txtTargetkbps{*this, "txtTargetkbps", {.in = &fmTarnwell, .accessibleName = "Target kbps"}};

    Frame fmGUI{*this, "fmGUI", {.visible = false, .left = 240, .top = 480}};
    CheckBox chkStayOnTop{
        *this, "chkStayOnTop", {.in = &fmGUI, .caption = "Keep GUI windows on top of other windows"}};
    CheckBox chkClosePS2{
        *this, "chkClosePS2", {.in = &fmGUI, .caption = "Turn off PS2 when exiting this GUI"}};
    CheckBox chkShutdownPS2{
        *this, "chkShutdownPS2", {.in = &fmGUI, .caption = "Turn off PS2 after all jobs are complete"}};
    CheckBox chkShutdownPC{
        *this, "chkShutdownPC", {.in = &fmGUI, .caption = "Shutdown PC when all jobs are complete"}};
    CheckBox chkStandby{
        *this, "chkStandby", {.in = &fmGUI, .caption = "Put PC in Standby when all jobs are complete"}};
    CheckBox chkBalloonTips{
        *this, "chkBalloonTips", {.in = &fmGUI, .caption = "Turn off system tray balloon tips"}};
    CheckBox chkCloseStatus{
        *this, "chkCloseStatus", {.in = &fmGUI, .caption = "Close Status window after jobs complete"}};
    CheckBox chkStatusServer{
        *this, "chkStatusServer", {.in = &fmGUI, .caption = "Enable Remote Status HTTP Server"}};
    Button cmdTest{*this, "cmdTest", {.in = &fmGUI, .caption = "Test"}};
    Label lblGameISO{*this, "lblGameISO", {.in = &fmGUI, .caption = "Game ISO directory:"}};
    TextBox txtDefaultISO{
        *this, "txtDefaultISO", {.in = &fmGUI, .accessibleName = "Game ISO directory", .readOnly = true}};
    Button cmdDefaultISO{*this,
                         "cmdDefaultISO",
                         {.in = &fmGUI, .caption = "...", .accessibleName = "Choose the game ISO directory"}};
    Label lblColors{*this, "lblColors", {.in = &fmGUI, .caption = "Colors"}};
    CheckBox chkColors{*this, "chkColors", {.in = &fmGUI, .caption = "Enable"}};
    Button cmdForecolor{*this, "cmdForecolor", {.in = &fmGUI, .caption = "Fore", .enabled = false}};
    Button cmdBackcolor{*this, "cmdBackcolor", {.in = &fmGUI, .caption = "Back", .enabled = false}};
    Button cmdFont{*this, "cmdFont", {.in = &fmGUI, .caption = "Font"}};
    Button cmdSounds{*this, "cmdSounds", {.in = &fmGUI, .caption = "Sounds"}};

    Frame fmTools{*this, "fmTools", {.visible = false, .left = 240, .top = 480}};
    Label lblSelectDevice{*this, "lblSelectDevice", {.in = &fmTools, .caption = "Select a Device"}};
    ComboBox cmbHD{*this, "cmbHD", {.in = &fmTools, .accessibleName = "Device"}};
    Button cmdRefresh{*this, "cmdRefresh", {.in = &fmTools, .caption = "Refresh"}};
    Label lblFormatHD{
        *this, "lblFormatHD", {.in = &fmTools, .caption = "Format a Hard-Disk Drive for HDLoader use:"}};
    Button cmdFormat{*this, "cmdFormat", {.in = &fmTools, .caption = "Format Drive", .enabled = false}};
    Label lblBackupRestoreTOC{*this,
                              "lblBackupRestoreTOC",
                              {.in = &fmTools, .caption = "Backup and Restore HDLoader Table of Contents"}};
    Button cmdBackupTOC{*this, "cmdBackupTOC", {.in = &fmTools, .caption = "Backup TOC", .enabled = false}};
    Button cmdRestoreTOC{
        *this, "cmdRestoreTOC", {.in = &fmTools, .caption = "Restore TOC", .enabled = false}};

    Button cmdExit{*this, "cmdExit", {.caption = "Save and Exit"}};
    Button cmdExitNoSave{*this, "cmdExitNoSave", {.caption = "Exit without Saving"}};
    Button cmdDefaults{*this, "cmdDefaults", {.caption = "Use Defaults"}};
    /// Hands the start folder to the folder picker.
    TextBox txtDefaultPath{
        *this, "txtDefaultPath", {.accessibleName = "Start folder of the picker", .visible = false}};
};

} // namespace tarnwell::ui

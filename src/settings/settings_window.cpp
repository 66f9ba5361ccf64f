#include "settings/settings_window.h"

#include "base/fault.h"
#include "base/picked_path.h"
#include "settings/tool_config_text.h"

namespace tarnwell {

SettingsWindow::SettingsWindow(Shared& shared, GuiSettings& guiSettings, DataFolder& dataFolder,
                               ToolConfig& toolConfig)
    : shared_(shared), guiSettings_(guiSettings), dataFolder_(dataFolder), toolConfig_(toolConfig) {
    ui::FrmSettings& frmSettings = shared_.frmSettings.untouched();
    shared_.frmMain.cmdSettings.Click = [this] { show(); };
    shared_.frmMain.mnuSettings.Click = [this] { show(); };
    frmSettings.Load = [this] { load(); };
    frmSettings.Unload = [this](bool& cancel) { unload(cancel); };
    frmSettings.TabStrip.Click = [this] { switchPage(); };
    frmSettings.cmdExit.Click = [this] { leave(true); };
    frmSettings.cmdExitNoSave.Click = [this] { leave(false); };
    frmSettings.cmdDefaults.Click = [this] { useDefaults(); };
    frmSettings.cmdDiskDatabase.Click = [this] { chooseDiscDatabase(); };
}

void SettingsWindow::load() {
    blnSaveSettings_ = false;
    if (!shared_.config.exists())
        shared_.config.WriteDefaultConfig();
    guiSettings_.LoadGUISettings();
    toolConfig_.LoadToolSettings();
}

void SettingsWindow::show() {
    auto& frmSettings = shared_.frmSettings;
    frmSettings->TabStrip.selectedTab = ui::FrmSettings::kTarnwellTab;
    frmSettings->centreOver(shared_.frmMain);
    frmSettings->showRestored();
}

void SettingsWindow::switchPage() {
    auto& frmSettings = shared_.frmSettings;
    const int tab = frmSettings->TabStrip.selectedTab;
    frmSettings->fmTarnwell.visible = tab == ui::FrmSettings::kTarnwellTab;
    frmSettings->fmGUI.visible = tab == ui::FrmSettings::kGuiTab;
    frmSettings->fmTools.visible = tab == ui::FrmSettings::kToolsTab;
}

void SettingsWindow::leave(bool save) {
    blnSaveSettings_ = save;
    shared_.frmSettings->unload();
}

void SettingsWindow::unload(bool& cancel) {
    if (blnSaveSettings_) {
        save(cancel);
        return;
    }
    cancel = true;
    shared_.frmSettings.untouched().hide();
}

void SettingsWindow::save(bool& cancel) {
    if (!toolConfig_.exists()) {
        // The one way that really closes the window: its next use loads it anew.
        shared_.message(
            "Tarnwell settings will not be saved because your Application Data folder has not been "
            "properly set.");
        return;
    }
    cancel = true;
    try {
        toolConfig_.SaveToolSettings();
        shared_.frmSettings.untouched().hide();
    } catch (const Fault& fault) {
        // The window stays as it is; what could not be written is not tried again behind the user's back.
        blnSaveSettings_ = false;
        shared_.message(fault.text());
    }
}

void SettingsWindow::useDefaults() {
    if (!shared_.ports.dialogs.question(
            "Are you sure you want to reset all of your settings to default for both "
            "tarnwell and the GUI?",
            shared_.title))
        return;
    auto& frmSettings = shared_.frmSettings;
    dataFolder_.reset();
    frmSettings->chkAutoThrottle.value = 0;
    frmSettings->chkEnableASPI.value = 0;
    frmSettings->chkLimit28bit.value = 1;
    frmSettings->chkUseCompression.value = 0;
    frmSettings->txtTargetkbps.text = kFirstSpeed;
    shared_.frmMain.txtIP.text = ConfigStore::defaultText("IP");
    shared_.config.WriteDefaultConfig();
    guiSettings_.LoadGUISettings();
    // The tool's file still stands: only the keys that it lacks keep the values from above.
    toolConfig_.LoadToolSettings();
}

void SettingsWindow::chooseDiscDatabase() {
    const auto file = shared_.ports.dialogs.openFile({.title = "Select Disk Database",
                                                      .filter = "Tarnwell Disk Database|" + kDiscDatabase,
                                                      .folder = toolConfig_.folder(),
                                                      .mustExist = true});
    if (!file || !file->toLower().endsWith(kDiscDatabase))
        return;
    if (const auto name = NameInCodePage(shared_, *file))
        shared_.frmSettings->txtDiscDatabase.text = *name;
}

} // namespace tarnwell

#pragma once

#include "settings/gui_settings.h"

namespace tarnwell {

/// The settings window as a whole: loading, showing and leaving it, its pages, and what concerns more than
/// one page. Leaving hides it; others read its controls while it is hidden.
class SettingsWindow {
public:
    SettingsWindow(Shared& shared, GuiSettings& guiSettings, DataFolder& dataFolder, ToolConfig& toolConfig);

private:
    void load();
    void show();
    void switchPage();
    void leave(bool save);
    void unload(bool& cancel);
    void save(bool& cancel);
    void useDefaults();
    void chooseDiscDatabase();

    Shared& shared_;
    GuiSettings& guiSettings_;
    DataFolder& dataFolder_;
    ToolConfig& toolConfig_;
    bool blnSaveSettings_ = false; ///< what the last of the exit buttons said
};

} // namespace tarnwell

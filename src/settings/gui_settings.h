#pragma once

#include "settings/appearance.h"
#include "settings/data_folder.h"
#include "work/sounds.h"

namespace tarnwell {

/// The GUI page of the settings window. A setting is written at the moment the user changes it, and cannot be
/// taken back; loading runs the same handlers, so a loaded setting also takes effect.
class GuiSettings {
public:
    GuiSettings(Shared& shared, DataFolder& dataFolder, Sounds& sounds, Appearance& appearance);

    void LoadGUISettings();

private:
    void writeAtClick(ui::CheckBox& box, const QString& key);
    void writeAtClickUnlessOther(ui::CheckBox& box, ui::CheckBox& other, const QString& key);
    void keepOnTop();
    void chooseDefaultISO();

    Shared& shared_;
    DataFolder& dataFolder_;
    Sounds& sounds_;
    Appearance& appearance_;
};

} // namespace tarnwell

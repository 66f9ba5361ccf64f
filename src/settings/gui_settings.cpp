#include "settings/gui_settings.h"

#include "base/picked_path.h"
#include "base/set_check_box.h"

namespace tarnwell {

GuiSettings::GuiSettings(Shared& shared, DataFolder& dataFolder, Sounds& sounds, Appearance& appearance)
    : shared_(shared), dataFolder_(dataFolder), sounds_(sounds), appearance_(appearance) {
    ui::FrmSettings& frmSettings = shared_.frmSettings.untouched();
    writeAtClick(frmSettings.chkClosePS2, "ClosePS2");
    writeAtClick(frmSettings.chkShutdownPS2, "TurnOffPS2");
    writeAtClick(frmSettings.chkBalloonTips, "BalloonTips");
    writeAtClick(frmSettings.chkCloseStatus, "CloseStatus");
    writeAtClick(frmSettings.chkStatusServer, "StatusServer");
    writeAtClickUnlessOther(frmSettings.chkShutdownPC, frmSettings.chkStandby, "TurnOffPC");
    writeAtClickUnlessOther(frmSettings.chkStandby, frmSettings.chkShutdownPC, "StandbyPC");
    frmSettings.chkStayOnTop.Click = [this] { keepOnTop(); };
    frmSettings.cmdDefaultISO.Click = [this] { chooseDefaultISO(); };
    frmSettings.cmdSounds.Click = [this, &frmSettings] {
        shared_.frmMain.mnuSounds.popUpBelow(frmSettings.cmdSounds);
    };
}

void GuiSettings::LoadGUISettings() {
    auto& frmSettings = shared_.frmSettings;
    const ConfigStore& config = shared_.config;
    dataFolder_.settle();
    const ConfigStore::OneReading reading(config);
    SetCheckBox(frmSettings->chkClosePS2, config.text("ClosePS2"));
    SetCheckBox(frmSettings->chkShutdownPC, config.text("TurnOffPC"));
    SetCheckBox(frmSettings->chkStandby, config.text("StandbyPC"));
    SetCheckBox(frmSettings->chkShutdownPS2, config.text("TurnOffPS2"));
    frmSettings->txtDefaultISO.text = config.text("DefaultISO");
    SetCheckBox(frmSettings->chkStayOnTop, config.text("StayOnTop"));
    SetCheckBox(frmSettings->chkBalloonTips, config.text("BalloonTips"));
    SetCheckBox(frmSettings->chkColors, config.text("UseColor"));
    SetCheckBox(frmSettings->chkCloseStatus, config.text("CloseStatus"));
    SetCheckBox(frmSettings->chkStatusServer, config.text("StatusServer"));
    sounds_.load();
    appearance_.load();
}

void GuiSettings::writeAtClick(ui::CheckBox& box, const QString& key) {
    box.Click = [this, &box, key] { shared_.config.writeNumber(key, box.value); };
}

void GuiSettings::writeAtClickUnlessOther(ui::CheckBox& box, ui::CheckBox& other, const QString& key) {
    box.Click = [this, &box, &other, key] {
        if (box.value == 1 && other.value == 1)
            other.value = 0;
        shared_.config.writeNumber(key, box.value);
    };
}

void GuiSettings::keepOnTop() {
    constexpr int kGreyed = 2;
    const int value = shared_.frmSettings->chkStayOnTop.value;
    if (value != kGreyed) {
        const bool onTop = value == 1;
        shared_.frmMain.topmost = onTop;
        shared_.frmSettings->topmost = onTop;
        // A status window that comes up later is put on top by the queue that opens it.
        if (ui::FrmStatus& frmStatus = shared_.frmStatus.untouched(); frmStatus.shown())
            frmStatus.topmost = onTop;
    }
    shared_.config.writeNumber("StayOnTop", value);
}

void GuiSettings::chooseDefaultISO() {
    const auto chosen = shared_.ports.dialogs.chooseFolder({.title = "Select PS2 Game ISO directory"});
    if (!chosen)
        return;
    const auto folder = NameInCodePage(shared_, WithSeparator(*chosen));
    if (!folder)
        return;
    shared_.config.write("DefaultISO", *folder);
    shared_.frmSettings->txtDefaultISO.text = *folder;
}

} // namespace tarnwell

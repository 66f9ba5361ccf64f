#pragma once

#include "ui/frm_about.h"
#include "ui/frm_main.h"
#include "ui/frm_settings.h"
#include "ui/frm_status.h"

#include <QFont>
#include <QPalette>

/// The windows as the program's logic would leave them at moments that are worth a look.
namespace tarnwell::view::samples {

void start(ui::FrmMain& form);
void localDisk(ui::FrmMain& form);
void games(ui::FrmMain& form, int count);
void discRead(ui::FrmMain& form);
void jobs(ui::FrmMain& form);
void activity(ui::FrmMain& form);
void jobRunning(ui::FrmStatus& form);
/// The window of settings, open at one of its pages.
void settings(ui::FrmSettings& form, ui::FrmSettings::Tab tab);
/// The about window, its text typed.
void thanks(ui::FrmAbout& form);
/// A font and a pair of colours as a user might choose them.
void ownLook(ui::Form& form);

QPalette darkPalette();
/// As for people who need a high contrast.
QPalette blackPalette();

} // namespace tarnwell::view::samples

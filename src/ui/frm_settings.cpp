#include "ui/frm_settings.h"

namespace tarnwell::ui {

FrmSettings::FrmSettings()
    : Form("frmSettings", {.caption = " Settings & Tools", .width = 5400, .height = 4410}) {}

} // namespace tarnwell::ui

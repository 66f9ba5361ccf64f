#include "ui/frm_about.h"

namespace tarnwell::ui {

FrmAbout::FrmAbout() : Form("frmAbout", {.caption = " About...", .width = 4590, .height = 3345}) {}

} // namespace tarnwell::ui

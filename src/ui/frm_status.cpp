#include "ui/frm_status.h"

namespace tarnwell::ui {

FrmStatus::FrmStatus() : Form("frmStatus", {.caption = " Status", .width = 4935, .height = 3930}) {}

} // namespace tarnwell::ui

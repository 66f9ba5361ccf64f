#include "ui/frm_main.h"

namespace tarnwell::ui {

FrmMain::FrmMain()
    : Form("frmMain", {.caption = " Tarnwell GUI v1.5 by mirelane", .width = 10065, .height = kShortHeight}) {
}

} // namespace tarnwell::ui

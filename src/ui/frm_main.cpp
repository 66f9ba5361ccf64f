#include "ui/frm_main.h"

#include "ui/version.h"

namespace tarnwell::ui {

FrmMain::FrmMain()
    : Form("frmMain", {.caption = " Tarnwell GUI v" TARNWELL_VERSION " by mirelane",
                       .width = 10065,
                       .height = kShortHeight}) {}

} // namespace tarnwell::ui

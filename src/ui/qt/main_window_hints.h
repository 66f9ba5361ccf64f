#pragma once

#include "ui/frm_main.h"
#include "ui/qt/control_binder.h"

namespace tarnwell::view {

/// What is empty says in grey what fills it: the lists, the image, the name of the game.
void showHints(ui::FrmMain& form, ControlBinder& controls);

} // namespace tarnwell::view

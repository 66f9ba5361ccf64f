#pragma once

#include "ui/frm_about.h"
#include "ui/frm_main.h"
#include "ui/frm_settings.h"
#include "ui/frm_status.h"
#include "ui/qt/control_binder.h"

/// Whatever the mouse does in a window the keyboard does, too. To be called once a window has been laid out.
namespace tarnwell::view {

/// F5 reads the device anew. In the lists Delete does what the button of that name does; Enter and the menu
/// key edit a job as the right mouse button does.
void bindKeyboard(ui::FrmMain& form, ControlBinder& controls, QWidget& window);

/// Esc leaves without saving, F5 looks for disks.
void bindKeyboard(ui::FrmSettings& form, ControlBinder& controls, QWidget& window);

/// Esc does nothing here: a stray key must not cancel hours of work. Nor does the focus come back to what had
/// it last: each work finds it where a stray blank does no harm.
void bindKeyboard(ui::FrmStatus& form, ControlBinder& controls, QWidget& window);

/// Esc closes.
void bindKeyboard(ui::FrmAbout& form, ControlBinder& controls, QWidget& window);

} // namespace tarnwell::view

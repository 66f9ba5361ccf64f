#pragma once

#include "ui/frm_main.h"
#include "ui/qt/form_view.h"

namespace tarnwell::view {

class MainWindowView final : public FormView {
public:
    explicit MainWindowView(ui::FrmMain& form);
};

} // namespace tarnwell::view

#pragma once

#include "ui/qt/late_window.h"
#include "ui/qt/status_window_layout.h"

namespace tarnwell::view {

using StatusWindowView = LateWindow<ui::FrmStatus, StatusWindowLayout>;

} // namespace tarnwell::view

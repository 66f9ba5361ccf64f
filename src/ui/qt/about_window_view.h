#pragma once

#include "ui/qt/about_window_layout.h"
#include "ui/qt/late_window.h"

namespace tarnwell::view {

using AboutWindowView = LateWindow<ui::FrmAbout, AboutWindowLayout>;

} // namespace tarnwell::view

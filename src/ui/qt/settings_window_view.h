#pragma once

#include "ui/qt/late_window.h"
#include "ui/qt/settings_window_layout.h"

namespace tarnwell::view {

using SettingsWindowView = LateWindow<ui::FrmSettings, SettingsWindowLayout>;

} // namespace tarnwell::view

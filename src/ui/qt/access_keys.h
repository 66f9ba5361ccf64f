#pragma once

#include "ui/qt/control_binder.h"

#include <vector>

namespace tarnwell::view {

/// A letter of a control's caption that reaches the control together with the Alt key. One of a label reaches
/// what the label names; a tab strip has a letter a tab.
struct AccessKey {
    ui::Control& control;
    const char* letters;
};

/// Marks the letters in the captions, also when they change.
void giveAccessKeys(ControlBinder& controls, const std::vector<AccessKey>& keys);

} // namespace tarnwell::view

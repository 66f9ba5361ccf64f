#pragma once

#include "ui/controls.h"

namespace tarnwell {

/// Takes a number over into a check box, to the nearest whole one, halves to the even one; unless no check
/// box can hold it.
void SetCheckBox(ui::CheckBox& box, const QString& number);

} // namespace tarnwell

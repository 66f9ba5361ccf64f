#include "base/set_check_box.h"

#include "base/text_primitives.h"

#include <cmath>

namespace tarnwell {

void SetCheckBox(ui::CheckBox& box, const QString& number) {
    constexpr double kGreyed = 2;
    const double value = std::nearbyint(Val(number));
    if (value >= 0 && value <= kGreyed)
        box.value = static_cast<int>(value);
}

} // namespace tarnwell

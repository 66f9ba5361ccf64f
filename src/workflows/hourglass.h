#pragma once

#include "ui/form.h"

namespace tarnwell {

/// The pointer of a window is the hourglass for as long as this lives: the only sign of a short run.
class Hourglass {
public:
    explicit Hourglass(ui::Form& form) : form_(form) { form_.mousePointer = ui::MousePointer::Hourglass; }
    ~Hourglass() { form_.mousePointer = ui::MousePointer::Default; }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    ui::Form& form_;
};

} // namespace tarnwell

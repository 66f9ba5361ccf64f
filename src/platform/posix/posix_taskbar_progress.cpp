#include "platform/native.h"

namespace tarnwell {

namespace {

/// The desktops have no common way to draw on a task button.
class NoTaskbarProgress : public TaskbarProgress {
public:
    void show(int) override {}
    void clear() override {}
};

} // namespace

std::unique_ptr<TaskbarProgress> native::makeTaskbarProgress() {
    return std::make_unique<NoTaskbarProgress>();
}

} // namespace tarnwell

#pragma once

#include "re_entry/random.h"
#include "support/fake_ports.h"

namespace tarnwell::test {

/// A tool that mostly does what it is asked, soon; at times it is slow, silent, fails, or does not heed the
/// interrupt.
class MoodyTool {
public:
    explicit MoodyTool(Random& random) : random_(random) {}

    bool moody = false;
    std::optional<ChildScript> answerTo(const QString& command);

private:
    static ChildScript wellBehaved(const QString& command);
    void spoil(ChildScript& script);

    Random& random_;
};

} // namespace tarnwell::test

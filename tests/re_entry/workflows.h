#pragma once

#include "re_entry/scene.h"

namespace tarnwell::test {

/// Something that users do, in two steps: what comes before, and the click that starts the work.
struct Workflow {
    const char* name;
    void (*prepare)(Scene&);
    void (*perform)(Scene&);
};

const std::vector<Workflow>& workflows();

} // namespace tarnwell::test

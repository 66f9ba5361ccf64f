#pragma once

/// What child_helper does with the system's own means, defined once for each system.
namespace child {

/// Streams pass on their bytes as they are.
void prepare();
[[noreturn]] void hang();
/// Ends without a clean-up and without a core file.
[[noreturn]] void crash();
/// Whether an interrupt for the parent's session or console would not come here.
bool standsAlone();
void waitForParentsEnd();

} // namespace child

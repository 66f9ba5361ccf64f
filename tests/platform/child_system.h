#pragma once

/// What child_helper does with the system's own means, defined once for each system.
namespace child {

/// To be called first. Streams pass on their bytes as they are from then on.
void prepare();
[[noreturn]] void hang();
/// Ends without a clean-up and without a core file.
[[noreturn]] void crash();
/// Whether an interrupt for the parent's session or console would not come here.
bool standsAlone();
void waitForParentsEnd();

} // namespace child

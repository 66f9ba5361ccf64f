#pragma once

namespace tarnwell::test {

/// Does to this process what the system does at the end of the user's session.
void endSession();

} // namespace tarnwell::test

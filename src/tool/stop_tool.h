#pragma once

#include "tool/std_io.h"

namespace tarnwell {

/// Interrupts the running tool, as Ctrl+C at its console would. Quiet if none runs. False if the system
/// refused.
bool ShowStopPrompt(cStdIO& StdIO);

/// Waits, without a limit, until a tool that was told to stop has gone.
void WaitForStoppedTool(cStdIO& StdIO, EventPump& pump);

} // namespace tarnwell

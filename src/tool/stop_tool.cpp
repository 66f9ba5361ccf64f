#include "tool/stop_tool.h"

namespace tarnwell {

void ShowStopPrompt(cStdIO& StdIO) {
    StdIO.interrupt();
}

void WaitForStoppedTool(cStdIO& StdIO, EventPump& pump) {
    while (StdIO.stoppedToolLives())
        pump.waitForEvent(EventPump::kLookAgainMilliseconds);
}

} // namespace tarnwell

#include "tool/stop_tool.h"

namespace tarnwell {

bool ShowStopPrompt(cStdIO& StdIO) {
    return StdIO.interrupt();
}

void WaitForStoppedTool(cStdIO& StdIO, EventPump& pump) {
    while (StdIO.stoppedToolLives())
        pump.waitForEvent(EventPump::kLookAgainMilliseconds);
}

} // namespace tarnwell

#include "tool/stop_tool.h"

namespace tarnwell {

namespace {
constexpr int kLookAgainMilliseconds = 30;
}

void ShowStopPrompt(cStdIO& StdIO) {
    StdIO.interrupt();
}

void WaitForStoppedTool(cStdIO& StdIO, EventPump& pump) {
    while (StdIO.stoppedToolLives())
        pump.waitForEvent(kLookAgainMilliseconds);
}

} // namespace tarnwell

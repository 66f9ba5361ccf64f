#include "workflows/query.h"

#include "interpreter/tool_commands.h"

namespace tarnwell {

namespace {
constexpr int kLookAgainMilliseconds = 30;
}

void RunQuery(bool& flag, Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter) {
    const AwaitedAnswer answer(flag);
    interpreter.ParseToolOutput(channel.Tarn_Command(QueryCommand()));
    while (flag)
        shared.ports.pump.waitForEvent(kLookAgainMilliseconds);
}

} // namespace tarnwell

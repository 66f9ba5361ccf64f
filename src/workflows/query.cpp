#include "workflows/query.h"

#include "interpreter/tool_commands.h"

namespace tarnwell {

void RunQuery(bool& flag, ToolChannel& channel, OutputInterpreter& interpreter) {
    AwaitedAnswer answer(flag);
    interpreter.ParseToolOutput(channel.Tarn_Command(QueryCommand()));
    // Whatever was made of the answer, no other will come: text about a lost connection is read as no list at
    // all.
    answer.drop();
}

} // namespace tarnwell

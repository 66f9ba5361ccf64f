#pragma once

#include "interpreter/output_interpreter.h"
#include "tool/tool_channel.h"
#include "workflows/hourglass.h"

namespace tarnwell {

/// Says that the next output of the tool answers a question, for as long as the interpreter leaves the flag
/// standing. If the answer cannot be read, the question is dropped: later output must not be taken for it.
class AwaitedAnswer {
public:
    explicit AwaitedAnswer(bool& flag) : flag_(flag), exceptions_(std::uncaught_exceptions()) {
        flag_ = true;
    }
    ~AwaitedAnswer() {
        if (std::uncaught_exceptions() > exceptions_)
            drop();
    }
    /// No output is to be taken for the answer any more.
    void drop() { flag_ = false; }
    AwaitedAnswer(const AwaitedAnswer&) = delete;
    AwaitedAnswer& operator=(const AwaitedAnswer&) = delete;

private:
    bool& flag_;
    int exceptions_;
};

/// Asks the tool for the PC's disks and drives and returns when the answer has been read. `flag` says which
/// lists the answer fills.
void RunQuery(bool& flag, ToolChannel& channel, OutputInterpreter& interpreter);

} // namespace tarnwell

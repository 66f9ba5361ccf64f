#pragma once

#include <QString>

namespace tarnwell {

struct Shared;

/// Understands what the tool prints. The shared flags say what a text can be about: a query, a disc, a game
/// list, a running job. Without a flag a text changes nothing, unless it tells that the console
/// closed or refused a connection: that goes into the row of the latest job.
class OutputInterpreter {
public:
    explicit OutputInterpreter(Shared& shared) : shared_(shared) {}

    /// `text` is a whole output, a chunk as it came from the pipe, or one line. A line that makes no sense is
    /// a Fault.
    void ParseToolOutput(const QString& text);

private:
    Shared& shared_;
};

} // namespace tarnwell

#pragma once

#include "platform/ports.h"

/// What the tests of the real ports must ask the system itself, defined once for each system.
namespace tarnwell::test {

/// Ends a process at once; it has no say.
void endByForce(qint64 processId);

/// Ends a process of these tests that would not end by itself.
class Ending {
public:
    explicit Ending(const ChildProcess& child) : processId_(child.processId()) {}
    ~Ending() { endByForce(processId_); }
    Q_DISABLE_COPY_MOVE(Ending)

private:
    qint64 processId_;
};

/// Whether nothing is left of a process.
bool isGone(qint64 processId);

/// How many files, pipes and the like this process has open.
int openHandles();

/// How long this process has kept a processor busy.
double processorSeconds();

/// While it lives, this program ignores the interrupt, as one does that was started in the background.
class InterruptIgnored {
public:
    InterruptIgnored();
    ~InterruptIgnored();
    Q_DISABLE_COPY_MOVE(InterruptIgnored)
};

} // namespace tarnwell::test

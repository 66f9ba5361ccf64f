// Applies a behaviour to a running command, and notices the interrupt.
#pragma once

#include "behaviour.h"
#include "output.h"

#include <chrono>

namespace simulator {

class Conduct {
public:
    Conduct(const Behaviour& behaviour, Output& output) : behaviour_(behaviour), output_(output) {}

    const Behaviour& behaviour() const { return behaviour_; }

    /// Before the command's own work. `copies`: the command reports its progress in percent.
    void begin(bool copies);
    /// At each percent of the work. May throw Failure or Interrupted, may not return at all.
    void reached(int percent);
    /// Waits until `bytes` may have been copied since `start`.
    void keepPace(std::uint64_t bytes, std::chrono::steady_clock::time_point start);
    /// Throws Interrupted.
    void checkInterrupt() const;

private:
    void waitUntil(std::chrono::steady_clock::time_point moment) const;
    void printNoise();
    void printFlood(bool copies);

    const Behaviour& behaviour_;
    Output& output_;
};

} // namespace simulator

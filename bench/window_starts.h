#pragma once

#include "fresh_process.h"
#include "screen.h"

namespace tarnwell::bench {

/// A program that opens a window, and what its starts have shown.
struct StartedProgram {
    QString path;
    QStringList arguments{};
    QProcessEnvironment environment{};
    std::vector<double> milliseconds{}; ///< until its window is there
    std::vector<double> megabytes{};    ///< half a second later
};

/// Starts them in turns, so often after a first time that does not count; 0: that one counts.
void startInTurns(std::vector<StartedProgram>& programs, int starts, Screen& screen);

} // namespace tarnwell::bench

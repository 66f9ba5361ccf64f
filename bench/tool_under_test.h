#pragma once

#include "app/desktop/desktop_program.h"

namespace tarnwell::bench {

/// The program's way to the tool and back, which the program keeps to itself, over its windows.
struct ToolUnderTest {
    explicit ToolUnderTest(DesktopProgram& desktop) : shared(desktop.program().shared()) {}

    Shared& shared;
    cStdIO StdIO{shared};
    OutputInterpreter interpreter{shared};
    ToolChannel channel{shared, StdIO, interpreter};

    /// As at the start of an install: its output is read as progress, into the shown status window.
    void beginJob() {
        shared.frmStatus->show();
        shared.blnInstallRunning = true;
        shared.lJobStartTick = shared.ports.clock.tickCount();
    }
    void endJob() { shared.blnInstallRunning = false; }
};

} // namespace tarnwell::bench

#pragma once

#include "app/shared.h"
#include "tool/std_io.h"

namespace tarnwell {

/// The one way out, for the button, the tray menu and the close box. A running tool is neither waited for nor
/// ended.
class Exit {
public:
    Exit(Shared& shared, cStdIO& StdIO);

private:
    [[noreturn]] void exitProgram();
    void turnConsoleOff();
    [[noreturn]] void end();

    Shared& shared_;
    cStdIO& StdIO_;
};

} // namespace tarnwell

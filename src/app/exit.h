#pragma once

#include "base/shared.h"
#include "tool/std_io.h"

namespace tarnwell {

/// The one way out, for the button, the tray menu and the close box. A running tool is neither waited for nor
/// ended; only a console that is to go off is waited for, until the user asks once more. The end of the
/// user's session is another matter: the tool is told to stop, and nothing is waited for.
class Exit {
public:
    Exit(Shared& shared, cStdIO& StdIO);

private:
    [[noreturn]] void exitProgram();
    void turnConsoleOff();
    void endWithSession();
    [[noreturn]] void end();

    Shared& shared_;
    cStdIO& StdIO_;
    bool consoleGoesOff_ = false;
};

} // namespace tarnwell

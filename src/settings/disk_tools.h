#pragma once

#include "app/enable_gui.h"
#include "interpreter/output_interpreter.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// The work on whole disks: the list of devices, formatting one, and the table of contents of one, saved to a
/// file or restored from it. The last entry of the list stands for the networked console, whatever it holds.
class DiskTools {
public:
    DiskTools(Shared& shared, ToolChannel& channel, OutputInterpreter& interpreter, GuiSwitch& guiSwitch);

private:
    void listDevices();
    void chooseDevice();
    void format();
    void backUp();
    void restore();

    /// The device of the chosen entry. None, and the user knows, if it is a console that does not answer.
    std::optional<QString> device();
    void runTool(const QString& command);

    Shared& shared_;
    ToolChannel& channel_;
    OutputInterpreter& interpreter_;
    GuiSwitch& guiSwitch_;
};

} // namespace tarnwell

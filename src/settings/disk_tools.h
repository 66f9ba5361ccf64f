#pragma once

#include "interpreter/output_interpreter.h"
#include "tool/tool_channel.h"
#include "work/enable_gui.h"

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

    /// The device of the chosen entry. None, and the user knows, if nothing is chosen or a console does not
    /// answer.
    std::optional<QString> device();
    bool requireEntry();
    /// Returns whether the tool was started.
    bool runTool(const QString& command);

    Shared& shared_;
    ToolChannel& channel_;
    OutputInterpreter& interpreter_;
    GuiSwitch& guiSwitch_;
};

} // namespace tarnwell

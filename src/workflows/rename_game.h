#pragma once

#include "tool/tool_channel.h"
#include "work/enable_gui.h"

namespace tarnwell {

/// Renames a game when its label in the list has been edited.
class RenameGame {
public:
    RenameGame(Shared& shared, ToolChannel& channel, const GuiSwitch& guiSwitch);

private:
    bool accepts(int row, const QString& newName);
    void rename(int row, const QString& newName);

    Shared& shared_;
    ToolChannel& channel_;
    const GuiSwitch& guiSwitch_;
};

} // namespace tarnwell

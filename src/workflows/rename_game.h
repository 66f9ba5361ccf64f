#pragma once

#include "app/enable_gui.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// Renames a game when its label in the list has been edited.
class RenameGame {
public:
    RenameGame(Shared& shared, ToolChannel& channel, const GuiSwitch& guiSwitch);

private:
    bool accepts(const QString& oldName, const QString& newName);
    void rename(int row, const QString& newName);

    Shared& shared_;
    ToolChannel& channel_;
    const GuiSwitch& guiSwitch_;
};

} // namespace tarnwell

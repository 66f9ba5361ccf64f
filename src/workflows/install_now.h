#pragma once

#include "interpreter/tool_commands.h"
#include "services/status_server.h"
#include "tool/tool_channel.h"
#include "work/completion_actions.h"
#include "work/enable_gui.h"

namespace tarnwell {

/// Installs the game of the install page onto the selected device at once, without the job list.
class InstallNow {
public:
    InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
               CompletionActions& completionActions, StatusServer& statusServer);

private:
    void install();
    void openStatus(const QString& name);
    /// Returns what to tell the user of an install that failed, nothing of one that worked or was cancelled.
    QString runTool(const Installation& game);
    QString failureOf(const Installation& game) const;
    void finish(const Installation& game);

    Shared& shared_;
    ToolChannel& channel_;
    cStdIO& StdIO_;
    GuiSwitch& guiSwitch_;
    CompletionActions& completionActions_;
    StatusServer& statusServer_;
};

} // namespace tarnwell

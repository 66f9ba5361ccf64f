#pragma once

#include "app/enable_gui.h"
#include "interpreter/tool_commands.h"
#include "queue/completion_actions.h"
#include "services/status_server.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// Installs the game of the install page onto the selected device at once, without the job list.
class InstallNow {
public:
    InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
               CompletionActions& completionActions, StatusServer& statusServer);

private:
    void install();
    void openStatus(const QString& name);
    void run(const Installation& game);
    void finish(const Installation& game);

    Shared& shared_;
    ToolChannel& channel_;
    cStdIO& StdIO_;
    GuiSwitch& guiSwitch_;
    CompletionActions& completionActions_;
    StatusServer& statusServer_;
};

} // namespace tarnwell

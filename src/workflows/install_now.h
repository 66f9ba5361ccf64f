#pragma once

#include "app/enable_gui.h"
#include "queue/completion_actions.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// Installs the game of the install page onto the selected device at once, without the job list.
class InstallNow {
public:
    InstallNow(Shared& shared, ToolChannel& channel, cStdIO& StdIO, GuiSwitch& guiSwitch,
               CompletionActions& completionActions);

private:
    struct Game {
        QString name, device, command;
    };

    void install();
    bool sourceChosen();
    void openStatus(const QString& name);
    Game readPage() const;
    void run(const Game& game);
    void finish(const Game& game);
    void refreshGameList();

    Shared& shared_;
    ToolChannel& channel_;
    cStdIO& StdIO_;
    GuiSwitch& guiSwitch_;
    CompletionActions& completionActions_;
};

} // namespace tarnwell

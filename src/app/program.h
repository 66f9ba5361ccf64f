#pragma once

#include "app/exit.h"
#include "app/hide_and_restore.h"
#include "app/navigation.h"
#include "base/event_dispatcher.h"
#include "base/shared.h"
#include "interpreter/output_interpreter.h"
#include "queue/job_list.h"
#include "services/about_window.h"
#include "services/status_server.h"
#include "settings/appearance.h"
#include "settings/disk_tools.h"
#include "settings/settings_window.h"
#include "tool/std_io.h"
#include "tool/tool_channel.h"
#include "work/completion_actions.h"
#include "work/enable_gui.h"
#include "work/sounds.h"
#include "work/status_window.h"
#include "workflows/add_game.h"
#include "workflows/copy_games.h"
#include "workflows/delete_games.h"
#include "workflows/device_selection.h"
#include "workflows/dropped_images.h"
#include "workflows/export_game_list.h"
#include "workflows/install_now.h"
#include "workflows/install_source.h"
#include "workflows/make_iso.h"
#include "workflows/queue_runner.h"
#include "workflows/rename_game.h"

namespace tarnwell {

/// The whole program but its looks: made of its parts, which attach themselves to the events of the windows.
class Program {
public:
    explicit Program(const Ports& ports);

    /// From the program's start to the shown main window. An error on the way is told and ends the program.
    void start();

    Shared& shared() { return shared_; }
    EventDispatcher& dispatcher() { return dispatcher_; }
    HideAndRestore& hideAndRestore() { return hideAndRestore_; }
    const cStdIO& StdIO() const { return StdIO_; }

private:
    void loadMain();
    void layOutMain();

    Shared shared_;
    EventDispatcher dispatcher_;
    cStdIO StdIO_;
    OutputInterpreter interpreter_;
    ToolChannel channel_;
    GuiSwitch guiSwitch_;
    Navigation navigation_;
    HideAndRestore hideAndRestore_;
    Exit exit_;
    StatusWindow statusWindow_;
    CompletionActions completionActions_;
    Sounds sounds_;
    JobList jobList_;
    AddGame addGame_;
    StatusServer statusServer_;
    QueueRunner queueRunner_;
    DeviceSelection deviceSelection_;
    InstallSource installSource_;
    DroppedImages droppedImages_;
    InstallNow installNow_;
    MakeIso makeIso_;
    CopyGames copyGames_;
    DeleteGames deleteGames_;
    RenameGame renameGame_;
    ExportGameList exportGameList_;
    Appearance appearance_;
    DiskTools diskTools_;
    ToolConfig toolConfig_;
    DataFolder dataFolder_;
    GuiSettings guiSettings_;
    SettingsWindow settingsWindow_;
    AboutWindow aboutWindow_;
};

} // namespace tarnwell

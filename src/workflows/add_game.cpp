#include "workflows/add_game.h"

#include "interpreter/tool_commands.h"
#include "workflows/free_space.h"
#include "workflows/install_source.h"

namespace tarnwell {

AddGame::AddGame(Shared& shared, JobList& jobList) : shared_(shared), jobList_(jobList) {
    shared_.frmMain.cmdAddGame.Click = [this] { add(); };
}

void AddGame::add() {
    ui::FrmMain& frmMain = shared_.frmMain;
    if (!requireSource(shared_))
        return;
    if (frmMain.txtGameName.text.get().isEmpty()) {
        shared_.message("Please enter a name for the game to be added.");
        return;
    }
    if (!requireFreeSpace(shared_))
        return;
    const NewJob game = TakeGame(frmMain);
    jobList_.queueJob(game.job, game.command, kJobAdded);
}

NewJob TakeGame(ui::FrmMain& frmMain) {
    const Installation game = ReadInstallPage(frmMain);
    frmMain.optISO.value = true;
    resetInstallPage(frmMain);
    return {.job = {.task = "Install",
                    .source = game.source,
                    .destination = game.device,
                    .name = game.name,
                    .startup = game.startup,
                    .type = game.type,
                    .flags = game.flags},
            .command = InstallCommand(game)};
}

} // namespace tarnwell

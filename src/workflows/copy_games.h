#pragma once

#include "queue/job_list.h"

#include <optional>

namespace tarnwell {

/// Queues copies of the game that is selected in the list: to a file on the PC, to another console, to
/// another disk of this PC. One game at a time.
class CopyGames {
public:
    CopyGames(Shared& shared, JobList& jobList);

private:
    /// A row of the list of games; `device` is where it was read.
    struct Game {
        QString name, type, device;
    };

    void copyToPc();
    void copyToConsole();
    void openDiskMenu();
    void copyToDisk(const QString& entry);
    void queueCopyToDevice(const QString& task, const Game& game, const QString& target);

    std::optional<Game> focusedGame() const;
    /// Tells the user that this works on one game only. Returns whether no more are selected.
    bool requireSingleGame();

    Shared& shared_;
    JobList& jobList_;
};

} // namespace tarnwell

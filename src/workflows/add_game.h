#pragma once

#include "queue/job_list.h"

namespace tarnwell {

/// A job that is still to be queued.
struct NewJob {
    Job job;
    QString command;
};

/// Queues the game of the install page, to be installed onto the selected device when the queue runs. Only
/// this one game is weighed against the free space: the queue can hold more than the disk can take.
class AddGame {
public:
    AddGame(Shared& shared, JobList& jobList);

private:
    void add();

    Shared& shared_;
    JobList& jobList_;
};

/// Takes the game from the install page, which is empty afterwards.
NewJob TakeGame(ui::FrmMain& frmMain);

} // namespace tarnwell

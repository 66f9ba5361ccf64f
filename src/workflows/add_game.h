#pragma once

#include "queue/job_list.h"

namespace tarnwell {

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

} // namespace tarnwell

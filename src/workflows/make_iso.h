#pragma once

#include "queue/job_list.h"

namespace tarnwell {

/// Queues a job that copies the disc in the chosen optical drive to an image file. Nothing but an old file of
/// that name is touched before the queue runs.
class MakeIso {
public:
    MakeIso(Shared& shared, JobList& jobList);

private:
    void makeIso();
    QString chosenDrive() const;

    Shared& shared_;
    JobList& jobList_;
};

} // namespace tarnwell

#pragma once

#include "base/shared.h"
#include "status/jobs.h"

namespace tarnwell {

/// The balloon of a workflow that has queued its job.
inline constexpr char kJobAdded[] = "Job added to job queue";

/// What users and workflows do to the list of jobs. Outside a run the buttons that work on jobs are usable
/// exactly when there are jobs.
class JobList {
public:
    explicit JobList(Shared& shared);

    /// Appends a waiting job with the tool's command line, without the tool's path.
    void queueJob(const Job& job, const QString& command);
    /// The same, and tells the user in a balloon.
    void queueJob(const Job& job, const QString& command, const QString& balloonText);

private:
    void removeSelected();
    void clear();
    void enableButtons(bool enable);
    void pressMouse(int button);
    void editCommand(int row);

    Shared& shared_;
    Jobs jobs_;
};

} // namespace tarnwell

#pragma once

#include "app/shared.h"

namespace tarnwell {

/// What the columns of the job list show of a job, all of it text; what a kind of job has no use for stays
/// empty.
struct Job {
    QString task{}, source{}, destination{}, name{}, startup{}, type{}, flags{};
};

/// The balloon of a workflow that has queued its job.
inline constexpr char kJobAdded[] = "Job added to job queue";

/// The jobs that wait, run and have run. They are the rows of lstJob and nothing else: the state in the first
/// column, what the job is about in the others, and the command, the only part that is ever executed, in the
/// row's hidden tag. Outside a run the buttons that work on jobs are usable exactly when there are jobs.
class JobList {
public:
    explicit JobList(Shared& shared);

    /// Appends a waiting job with the tool's command line, without the tool's path.
    void queueJob(const Job& job, const QString& command);
    /// The same, and tells the user in a balloon.
    void queueJob(const Job& job, const QString& command, const QString& balloonText);

private:
    void AddJob(const Job& job);
    void removeSelected();
    void clear();
    void enableButtons(bool enable);
    void pressMouse(int button);
    void editCommand(int row);

    Shared& shared_;
};

} // namespace tarnwell

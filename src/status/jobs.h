#pragma once

#include <QString>

namespace tarnwell {

struct Shared;

namespace ui {
class ListView;
}

/// What the first column of the job list says of a job. A failed job has words of its own instead, which
/// begin with "Error (" or "SPTI Error (".
inline constexpr char kPending[] = "Pending";
inline constexpr char kActive[] = "Active";
inline constexpr char kComplete[] = "Complete";
inline constexpr char kAborted[] = "Aborted";

/// What the other columns show of a job, all of it text; what a kind of job has no use for stays empty.
struct Job {
    QString task{}, source{}, destination{}, name{}, startup{}, type{}, flags{};
};

/// The jobs that wait, run and have run. They are the rows of lstJob and nothing else: the result in the
/// first column, what the job is about in the others, and the command, the only part that is ever executed,
/// in the row's hidden tag. Rows are counted from 0.
class Jobs {
public:
    explicit Jobs(Shared& shared);

    int count() const;
    /// Appends a waiting job, as yet without a command.
    void AddJob(const Job& job);

    /// The tool's command line, without the tool's path.
    QString command(int row) const;
    void setCommand(int row, const QString& command);
    /// A job that runs or is done is past all changes.
    bool editable(int row) const;

    bool complete(int row) const;
    void setResult(int row, const QString& result);
    /// The result of the job that the queue is working on, or has worked on last. An install without a queue
    /// has no row, and a row that is gone takes no result.
    void setRunningResult(const QString& result);
    /// Before a run: everything that is not complete waits again.
    void resetResults();
    /// After a cancel: the row and all below it, whatever they hold.
    void abortFrom(int row);

    /// Whether a job, whatever became of it, writes to the device or deletes from it. Rows name a local disk
    /// by less than its entry in the list of disks, so only a networked console is ever recognised.
    bool touch(const QString& device) const;
    /// Whether a job, whatever became of it, puts a game of this name onto the device.
    bool bring(const QString& name, const QString& device) const;

private:
    Shared& shared_;
    ui::ListView& lstJob_;
};

} // namespace tarnwell

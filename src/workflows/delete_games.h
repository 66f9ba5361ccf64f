#pragma once

#include "queue/job_list.h"
#include "tool/tool_channel.h"

namespace tarnwell {

/// Deletes the selected games from the active device, at once or when the queue runs. The games are those
/// that the user was asked about, whatever becomes of the selection meanwhile.
class DeleteGames {
public:
    DeleteGames(Shared& shared, ToolChannel& channel, JobList& jobList);

private:
    void deleteNow();
    void deleteByQueue();
    QStringList selectedGames() const;
    bool requireListedDisks();
    bool confirmed(const QString& question, const QStringList& games);

    Shared& shared_;
    ToolChannel& channel_;
    JobList& jobList_;
};

} // namespace tarnwell

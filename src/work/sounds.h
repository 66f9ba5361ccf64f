#pragma once

#include "base/shared.h"

namespace tarnwell {

/// The sounds that tell of the end of a queued job and of the whole queue. The captions of their two menu
/// entries hold the chosen files; the store only brings them over to the program's next start.
class Sounds {
public:
    explicit Sounds(Shared& shared);

    /// Sets the captions from the store.
    void load();

    /// After each job of the queue, however it ended. The last one falls silent if the end sound follows.
    void afterJob();
    /// At the end of the queue, cancelled or not.
    void afterQueue();

private:
    void choose(ui::MenuEntry& entry, const QString& words, const QString& key);

    Shared& shared_;
};

} // namespace tarnwell

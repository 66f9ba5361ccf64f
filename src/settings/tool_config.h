#pragma once

#include "base/shared.h"

namespace tarnwell {

/// The tool's own settings, in `tarnwell.conf` in the user's data folder. The program edits the file for the
/// tool: it reads it into the Tarnwell page of the settings window, and writes it from there.
class ToolConfig {
public:
    explicit ToolConfig(Shared& shared) : shared_(shared) {}

    /// Where the tool keeps its files, with a separator at its end: as the store has it, or as it was found
    /// in this run if the store could not take it. Empty if nobody knows.
    QString folder() const;
    void setFolder(const QString& folder);

    /// In that folder, whatever it is now.
    bool exists() const;
    static bool existsIn(const QString& folder);

    /// Makes an empty file if there is none, but nothing without a folder. A file that cannot be read is told
    /// to the user, and the controls keep what they have.
    void LoadToolSettings();
    /// Replaces the file as a whole. One that cannot be written is a Fault.
    void SaveToolSettings();

private:
    Shared& shared_;
    std::optional<QString> folderOfThisRun_; ///< unless the store has it
};

} // namespace tarnwell

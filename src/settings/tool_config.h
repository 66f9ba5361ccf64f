#pragma once

#include "app/shared.h"

namespace tarnwell {

/// The tool's own settings, in `tarnwell.conf` in the user's data folder. The program edits the file for the
/// tool: it reads it into the Tarnwell page of the settings window, and writes it from there.
class ToolConfig {
public:
    explicit ToolConfig(Shared& shared) : shared_(shared) {}

    /// In the folder of the store, whatever that is now.
    bool exists() const;
    static bool existsIn(const QString& folder);

    /// Makes an empty file if there is none. A file that cannot be read is told to the user, and the controls
    /// keep what they have.
    void LoadToolSettings();
    /// Replaces the file as a whole. One that cannot be written is a Fault.
    void SaveToolSettings();

private:
    QString folder() const;

    Shared& shared_;
};

} // namespace tarnwell

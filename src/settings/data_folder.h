#pragma once

#include "settings/tool_config.h"

namespace tarnwell {

/// Where the tool keeps its files: the folder for settings in the user's profile. It is looked for once at
/// each load of the settings window, and the user can show another one.
class DataFolder {
public:
    DataFolder(Shared& shared, ToolConfig& toolConfig);

    /// The stored folder stands if the tool's file is in it. Else the folder that the system names, then the
    /// two known forms of a profile, then the user.
    void settle();
    /// For "Use Defaults": looks without regard to the store.
    void reset();

private:
    void find();
    void take(const QString& folder);
    bool takeIfThere(const QString& folder);
    void askUser();
    void choose();
    void enableToolSettings(bool enable);
    QString systemFolder() const;
    QString startFolder() const;
    QString pickerTitle() const;

    Shared& shared_;
    ToolConfig& toolConfig_;
};

} // namespace tarnwell

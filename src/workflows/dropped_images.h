#pragma once

#include "queue/job_list.h"
#include "tool/tool_channel.h"
#include "work/enable_gui.h"
#include "workflows/add_game.h"
#include "workflows/image_search.h"
#include "workflows/install_source.h"

namespace tarnwell {

/// Images that the user drops onto the main window. One is picked as with Browse. Several, or folders, are
/// read one after the other and queued as with Add to Job Queue; a box tells at the end what became of each.
/// Nothing is installed.
class DroppedImages {
public:
    DroppedImages(Shared& shared, cStdIO& StdIO, ToolChannel& channel, GuiSwitch& guiSwitch,
                  InstallSource& installSource, JobList& jobList);

private:
    /// What the box at the end tells.
    struct Report {
        QStringList added, notAdded;
        bool cancelled = false;
        QString text() const;
    };

    bool takes(const QStringList& paths);
    void take(const QStringList& paths);
    void pick(const QString& image);
    void queueAll(const QStringList& paths);
    void readAll(const QStringList& paths, Report& report, std::vector<NewJob>& jobs);
    ImageSearch search(const QStringList& paths, ProgressBox& box);
    /// Reads an image onto the install page. Returns why its game cannot be added; nothing if it can.
    QString read(const QString& image);
    QString whyNotOnDevice() const;
    /// The game of the install page. The tool refuses a second game of the same name: it gets a number.
    NewJob takeGame(const std::vector<NewJob>& jobs);
    void cancel();

    Shared& shared_;
    cStdIO& StdIO_;
    ToolChannel& channel_;
    GuiSwitch& guiSwitch_;
    InstallSource& installSource_;
    JobList& jobList_;
    bool cancelled_ = false;
};

} // namespace tarnwell

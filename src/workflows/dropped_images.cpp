#include "workflows/dropped_images.h"

#include "base/fault.h"
#include "base/picked_path.h"
#include "workflows/command_arguments.h"
#include "workflows/free_space.h"
#include "workflows/listed_device.h"

#include <QDir>

#include <algorithm>

namespace tarnwell {

namespace {

constexpr QLatin1String kNewLine("\r\n"), kBlankLine("\r\n\r\n");

bool holdsImages(const QString& path) {
    const QFileInfo entry(path);
    return entry.isDir() || (entry.isFile() && isInstallableImage(path));
}

QString fileName(const QString& path) {
    return QFileInfo(path).fileName();
}

bool isListed(const ui::FrmMain& form, const QString& name) {
    const ui::ListView& games = form.lstHD;
    for (int row = 0; row < games.count(); ++row) {
        if (games.row(row).text == name)
            return true;
    }
    return false;
}

} // namespace

DroppedImages::DroppedImages(Shared& shared, cStdIO& StdIO, ToolChannel& channel, GuiSwitch& guiSwitch,
                             InstallSource& installSource, JobList& jobList)
    : shared_(shared), StdIO_(StdIO), channel_(channel), guiSwitch_(guiSwitch), installSource_(installSource),
      jobList_(jobList) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.FilesOffered = [this](const QStringList& paths, bool& accepted) { accepted = takes(paths); };
    frmMain.FilesDropped = [this](const QStringList& paths) { take(paths); };
}

bool DroppedImages::takes(const QStringList& paths) {
    const bool working =
        guiSwitch_.paused() || shared_.runUnderWay || channel_.busy() || StdIO_.stoppedToolLives();
    return !working && std::ranges::any_of(paths, holdsImages);
}

void DroppedImages::take(const QStringList& paths) {
    if (!requireTool(shared_))
        return;
    if (paths.size() == 1 && !QFileInfo(paths[0]).isDir())
        pick(paths[0]);
    else if (shared_.frmMain.cmdAddGame.enabled)
        queueAll(paths);
    else
        shared_.message("Nothing was added to the job queue, because the free space of the PS2 hard-drive is "
                        "not known yet. Press \"" +
                        shared_.frmMain.cmdAttach.caption + "\" and drop the images again.");
}

void DroppedImages::pick(const QString& image) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.optInstall.value = true;
    frmMain.optISO.value = true;
    installSource_.pick(QDir::toNativeSeparators(image));
}

void DroppedImages::queueAll(const QStringList& paths) {
    ui::FrmMain& frmMain = shared_.frmMain;
    frmMain.optISO.value = true;
    resetInstallPage(frmMain);
    Report report;
    std::vector<NewJob> jobs;
    {
        // Jobs are queued behind it, or the queue could be started while images are still being read.
        const PauseOfMainWindow pause(guiSwitch_);
        readAll(paths, report, jobs);
        resetInstallPage(frmMain);
    }
    for (const NewJob& game : jobs)
        jobList_.queueJob(game.job, game.command);
    shared_.message(report.text());
}

void DroppedImages::readAll(const QStringList& paths, Report& report, std::vector<NewJob>& jobs) {
    cancelled_ = false;
    const auto box = shared_.ports.dialogs.progress(
        "Add to Job Queue", [this] { shared_.frmMain.dispatch([this] { cancel(); }); });
    const ImageSearch found = search(paths, *box);
    for (const QString& file : found.useless())
        report.notAdded += file + ": no image that can be read";
    const QStringList& images = found.images();
    for (int i = 0; i < images.size() && !cancelled_; ++i) {
        const QString file = fileName(images[i]);
        box->show("Reading " + file, i, static_cast<int>(images.size()));
        const QString whyNot = read(images[i]);
        if (!cancelled_ && whyNot.isEmpty()) {
            jobs.push_back(takeGame(jobs));
            report.added += jobs.back().job.name + " (" + file + ')';
        } else if (!cancelled_) {
            report.notAdded += file + ": " + whyNot;
        }
    }
    report.cancelled = cancelled_;
}

ImageSearch DroppedImages::search(const QStringList& paths, ProgressBox& box) {
    ImageSearch search(paths);
    while (!search.nextFolder().isEmpty() && !cancelled_) {
        box.show("Looking for images in " + QDir::toNativeSeparators(search.nextFolder()), 0, 0);
        shared_.ports.pump.pump();
        search.lookIntoNextFolder();
    }
    return search;
}

QString DroppedImages::read(const QString& image) {
    const QString name = KnownName(shared_.ports.folders, image);
    if (name.isEmpty())
        return "its name has letters that tarnwell.exe cannot hold";
    const ui::FrmMain& frmMain = shared_.frmMain;
    const bool answered = installSource_.pickOneOfMany(name);
    if (frmMain.txtGameSize.tag.get().isEmpty())
        return answered ? QStringLiteral("tarnwell.exe cannot read a game from it")
                        : QStringLiteral("tarnwell.exe did not answer");
    if (frmMain.txtGameName.text.get().isEmpty())
        return "the game has no name";
    return whyNotOnDevice();
}

QString DroppedImages::whyNotOnDevice() const {
    if (!isChosenDisk(shared_.frmMain, shared_.listedDevice))
        return "the free space of the chosen disk is not known";
    try {
        const Room room = RoomForGame(shared_.frmMain);
        return room.enough() ? QString()
                             : "it needs " + QString::number(room.needed) + "MB, and " + room.available +
                                   "MB are available";
    } catch (const Fault& fault) {
        return fault.text();
    }
}

NewJob DroppedImages::takeGame(const std::vector<NewJob>& jobs) {
    const QString device = ActiveDeviceShort(shared_.frmMain);
    const auto taken = [&](const QString& name) {
        return isListed(shared_.frmMain, name) || Jobs(shared_).bring(name, device) ||
               std::ranges::any_of(jobs, [&](const NewJob& game) { return game.job.name == name; });
    };
    ui::TextBox& txtGameName = shared_.frmMain.txtGameName;
    const QString name = txtGameName.text;
    for (int number = 2; taken(txtGameName.text); ++number)
        txtGameName.text = name + " (" + QString::number(number) + ')';
    return TakeGame(shared_.frmMain);
}

void DroppedImages::cancel() {
    cancelled_ = true;
    channel_.dropQuestion();
}

QString DroppedImages::Report::text() const {
    const auto block = [](const char* heading, const QStringList& lines) {
        return lines.isEmpty() ? QString() : QString(kBlankLine) + heading + kNewLine + lines.join(kNewLine);
    };
    const qsizetype all = added.size() + notAdded.size();
    QString text = all == 0 ? QStringLiteral("There was no game image in what you dropped.")
                            : QString::number(added.size()) + " of " + QString::number(all) +
                                  " images added to the job queue.";
    if (cancelled)
        text = "You cancelled before all images were read. " +
               (all == 0 ? QStringLiteral("Nothing was added.") : text);
    return text + block("Not added:", notAdded) + block("Added:", added);
}

} // namespace tarnwell

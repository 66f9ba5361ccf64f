#include "tour/guided_tour.h"

#include "tour/kept_pictures.h"
#include "tour/screen_picture.h"
#include "ui/version.h"

#include <QApplication>

#include <cstdio>
#include <thread>

namespace tarnwell::tour {

namespace {

const QString kGame = QStringLiteral("Salt and Sand");
const QString kFileExists = QStringLiteral("Error (File already exists)");

/// Five jobs at the pace of the single install would be a long tour.
constexpr char kBriskly[] = "delay_ms_per_step = 15\n";

/// The job that is to be cancelled must not be complete before a user on a busy machine is that fast.
constexpr char kSlowEnoughToCancel[] = "delay_ms_per_step = 60\n";
constexpr int kChessDrive = 4;

/// Images are read faster than anybody could see.
constexpr char kUnhurriedly[] = "[cdvd_info2]\nstart_delay_ms = 400\n";
constexpr std::chrono::milliseconds kTwoAreRead{1000};

/// The dialog for files sorts its list some time after it has opened.
constexpr std::chrono::milliseconds kDialogSettles{400};

/// A list that has just been filled or shown takes its final shape a moment later.
constexpr std::chrono::milliseconds kBetweenGlances{30};
constexpr int kMostGlances = 20;

void expect(bool asExpected, const QString& what) {
    if (!asExpected)
        throw Stuck("Expected " + what + '.');
}

bool anyContains(const QStringList& rows, const QString& part) {
    return !rows.filter(part).isEmpty();
}

} // namespace

void GuidedTour::play(const QString& lastPicture) {
    constexpr void (GuidedTour::*kScenes[])() = {
        &GuidedTour::readConsole,    &GuidedTour::readDisk,        &GuidedTour::lookAtImage,
        &GuidedTour::cancelInstall,  &GuidedTour::completeInstall, &GuidedTour::lookAtResult,
        &GuidedTour::queueJobs,      &GuidedTour::cancelQueue,     &GuidedTour::completeQueue,
        &GuidedTour::dropImages,     &GuidedTour::sortGames,       &GuidedTour::useKeys,
        &GuidedTour::lookAtSettings, &GuidedTour::changeLook,      &GuidedTour::lookAtAbout};
    user_.look([this] { ConfigWrite("tarnwell", "DefaultISO", samples_, bench_.path("config.cfg")); });
    tell("start", "The program has started.");
    for (const auto scene : kScenes) {
        (this->*scene)();
        if (told_.contains(lastPicture))
            return;
    }
    expect(lastPicture.isEmpty(), "a picture by the name of " + lastPicture);
}

void GuidedTour::readConsole() {
    user_.type("txtIP", "127.0.0.1");
    tell("address", "The address of a console on the network is typed in.");
    user_.click("cmdAttach");
    user_.waitUntilIdle();
    tell("console", "Refresh PS2: the console has told how much room it has.");
    user_.click("optBrowse");
    expect(anyContains(user_.rows("lstHD"), "Glass Orchard"), "the games of the console in the list");
    tell("console-games", "The games on the console.");
}

void GuidedTour::readDisk() {
    user_.click("optLocal");
    user_.waitUntilIdle();
    expect(user_.entries("cmbHD").size() >= 2, "two disks to choose from");
    user_.choose("cmbHD", 0);
    tell("disk", "A disk in the PC is chosen instead.");
    user_.click("cmdAttach");
    user_.waitUntilIdle();
    expect(anyContains(user_.rows("lstHD"), "Marsh Runner"), "the games of the disk in the list");
    tell("disk-games", "Refresh HDD: the games on the disk.");
}

void GuidedTour::lookAtImage() {
    user_.click("optInstall");
    tell("install-page", "Over to the install page.");
    user_.click("cmdISO");
    user_.waitForFileDialog();
    std::this_thread::sleep_for(kDialogSettles);
    tell("pick-image", "Browse: which image is to be installed?");
    user_.pickFile(image_);
    user_.waitUntilIdle();
    expect(user_.text("txtGameName") == "SALT_AND_SAND", "the label of the image as the name of the game");
    expect(user_.text("txtGameStartup") == "SLUS_990.51", "the startup file of the image");
    tell("image-read", "The image has told its name, startup file, type and size.");
}

void GuidedTour::cancelInstall() {
    fillInstallPage();
    user_.click("cmdCompat");
    tell("flags", "The game gets a better name and two compatibility flags.");
    user_.clickMenuEntry("mnuDone");
    startInstall();
    waitForPercent(50);
    tell("before-cancel", "Install Now: half way, and to be cancelled.");
    user_.click("frmStatus.cmdStop");
    user_.waitUntilIdle();
    showWindows();
    user_.click("optBrowse");
    expect(!anyContains(user_.rows("lstHD"), kGame), "no half game after the install was cancelled");
    tell("cancelled", "Cancelled: no half game is left on the disk.");
}

void GuidedTour::completeInstall() {
    user_.click("optInstall");
    fillInstallPage();
    startInstall();
    waitForPercent(33);
    tell("third", "Once more; a third is done.");
    showBothWindows();
    user_.click("optBrowse");
    waitForPercent(66);
    tell("installing", "Two thirds; meanwhile the main window can be looked at, but starts nothing.");
    user_.waitUntilIdle();
}

void GuidedTour::lookAtResult() {
    expect(anyContains(user_.rows("lstHD"), kGame + " | SLUS_990.51 | 0.06GB | CD | +1+3"),
           "the game in the list with its startup file, size, type and flags");
    tell("installed", "Done: the game is in the list.");
    user_.click("chkOutput");
    user_.waitUntilIdle();
    tell("activity", "View Tarnwell Activity: the last command and what the tool said.");
    expect(bench_.run({"tarn_toc", "hdd1:"}).contains(kGame), "the game on the disk");
}

void GuidedTour::queueJobs() {
    user_.click("chkOutput");
    user_.selectRow("lstHD", kGame);
    QFile::copy(image_, backup_); // is in the way of the copy
    user_.click("cmdBackupPC");
    user_.pickFile(backup_);
    user_.waitUntilIdle();
    tell("queued", "Copy to PC: the copy is no more than a job in the queue yet.");
    user_.click("cmdBackupHDD");
    user_.clickMenuEntry("mnuHDD(1)");
    user_.waitUntilIdle();
    queueInstall();
    user_.click("optBrowse");
    user_.selectRow("lstHD", "Lantern");
    user_.click("cmdDelete");
    tell("delete-menu", "Delete: now, or with the other jobs?");
    user_.clickMenuEntry("mnuDeleteQueue");
    user_.agree();
    user_.waitUntilIdle();
    queueMakeIso();
    user_.click("optJobQueue");
    user_.waitUntilIdle();
    expectResults({"Pending", "Pending", "Pending", "Pending", "Pending"});
    tell("jobs", "Five jobs of five kinds wait in the queue.");
}

void GuidedTour::cancelQueue() {
    bench_.behave(kSlowEnoughToCancel);
    user_.click("cmdStart");
    waitForHalfOfJob(3);
    showBothWindows();
    tell("queue-runs", "Start Job Queue: the first job has failed, because its file exists; the third runs.");
    user_.click("frmStatus.cmdStop");
    user_.waitUntilIdle();
    expectResults({kFileExists, "Complete", "Aborted", "Aborted", "Aborted"});
    tell("queue-cancelled", "Cancel: the rest of the queue is aborted.");
}

void GuidedTour::completeQueue() {
    QFile::remove(backup_);
    bench_.behave(kBriskly);
    user_.click("cmdStart");
    waitForHalfOfJob(5);
    showBothWindows();
    tell("queue-again", "Started again with the old file out of the way: what is complete is not repeated.");
    user_.waitUntilIdle();
    expectResults({"Complete", "Complete", "Complete", "Complete", "Complete"});
    tell("queue-done", "All jobs are complete.");
    expect(!bench_.run({"tarn_toc", "hdd1:"}).contains("Lantern"), "the deleted game to be gone");
    expect(bench_.run({"tarn_toc", "hdd2:"}).contains(kGame), "the copy on the second disk");
}

void GuidedTour::dropImages() {
    user_.click("cmdClear");
    user_.waitUntilIdle();
    bench_.behave(kUnhurriedly);
    // Among the program's events: the toolkit keeps something of a pattern for the thread that matches it,
    // and the end of any other thread under Windows frees that when its memory has gone.
    QStringList images =
        user_.look([this] { return QDir(samples_).entryList({"*.iso"}, QDir::Files, QDir::Name); });
    for (QString& image : images)
        image.prepend(samples_ + '/');
    expect(images.size() == 5, "five sample images");
    expect(user_.drop("lstJob", images), "the window to take the images");
    std::this_thread::sleep_for(kTwoAreRead);
    tell("images-read", "Five images are dropped onto the window, and read one after the other.");
    user_.waitFor("a message", [this] { return user_.messageUp(); });
    tell("images-told", "What was added, and what was not.");
    const QString told = user_.confirmMessage();
    expect(told.startsWith("4 of 5 images"), "four games among the images: " + told);
    user_.waitUntilIdle();
    expectResults({"Pending", "Pending", "Pending", "Pending"});
    tell("images-queued", "All games among them wait in the queue; nothing has started.");
}

void GuidedTour::sortGames() {
    user_.click("cmdControls");
    user_.click("optBrowse");
    const QStringList asTold = user_.rows("lstHD");
    user_.clickHeading("lstHD", "Size");
    tell("sorted", "A click on the heading Size: the smallest game comes first.");
    expect(user_.rows("lstHD") != asTold, "the games in another order");
    user_.maximise("frmMain");
    tell("maximised", "The list takes the room that the window gets.");
    user_.unmaximise("frmMain");
}

void GuidedTour::useKeys() {
    constexpr int kMostTabs = 20;
    user_.pressAccessKey("optInstall");
    user_.pressAccessKey("optBrowse");
    for (int tabs = 0; user_.focused() != "lstHD"; ++tabs) {
        expect(tabs < kMostTabs, "the Tab key to reach the list");
        user_.press(Qt::Key_Tab);
    }
    user_.press(Qt::Key_Home);
    user_.press(Qt::Key_Down);
    user_.press(Qt::Key_Delete);
    user_.waitFor("the menu of Delete", [] { return QApplication::activePopupWidget() != nullptr; });
    tell("keys", "The same by keys alone: Alt and the marked letter, Tab, the arrows, Delete.");
    user_.press(Qt::Key_Escape);
    user_.waitFor("the menu to close", [] { return QApplication::activePopupWidget() == nullptr; });
    user_.waitUntilIdle();
}

void GuidedTour::queueInstall() {
    user_.click("optInstall");
    fillInstallPage();
    user_.type("txtGameName", kGame + " 2");
    user_.click("cmdAddGame");
    user_.waitUntilIdle();
}

void GuidedTour::queueMakeIso() {
    user_.click("optInstall");
    user_.click("optOptical");
    user_.waitUntilIdle();
    user_.choose("cmbOptical", kChessDrive);
    user_.waitUntilIdle();
    user_.click("cmdMakeISO");
    user_.pickFile(bench_.path("Pocket Chess.iso"));
    user_.waitUntilIdle();
}

void GuidedTour::lookAtSettings() {
    user_.click("cmdSettings");
    user_.waitFor("the settings window", [this] { return user_.windowUp("frmSettings"); });
    tell("settings-tarnwell", "Settings & Tools: the settings of the tool.");
    user_.selectTab("TabStrip", ui::FrmSettings::kToolsTab);
    user_.click("cmdRefresh");
    user_.waitUntilIdle();
    tell("settings-tools", "The tools for disks; all disks are listed, formatted or not.");
    user_.selectTab("TabStrip", ui::FrmSettings::kGuiTab);
    tell("settings-gui", "The settings of this program.");
}

void GuidedTour::changeLook() {
    user_.click("cmdFont");
    user_.pickFont(QFont("DejaVu Serif", 10));
    user_.click("chkColors");
    user_.click("cmdForecolor");
    user_.pickColor(QColor(0x1d, 0x3b, 0x2a));
    user_.click("cmdBackcolor");
    user_.pickColor(QColor(0xf6, 0xee, 0xd8));
    user_.waitUntilIdle();
    tell("own-look", "Another font, another pair of colours: all windows have them at once.");
    user_.click("cmdExitNoSave");
    user_.waitFor("the settings window to close", [this] { return !user_.windowUp("frmSettings"); });
    tell("main-own-look", "The main window has grown with its font.");
}

void GuidedTour::lookAtAbout() {
    user_.click("cmdAbout");
    user_.waitFor("the about window", [this] { return user_.windowUp("frmAbout"); });
    user_.waitUntilIdle();
    expect(user_.text("frmAbout.Label2") == "v" TARNWELL_VERSION, "the version of the program");
    tell("about", "About: the version, links to web pages, and thanks that have typed themselves.");
    user_.closeWindow("frmAbout");
    user_.waitFor("the about window to close", [this] { return !user_.windowUp("frmAbout"); });
}

void GuidedTour::waitForHalfOfJob(int job) {
    user_.waitForText("lblTask", QString("Currently on Job %1 of 5").arg(job));
    // The bar shows the job before until this one has told of itself.
    user_.waitFor("half of the job", [this] {
        const int percent = user_.percent("picCurrent");
        return percent >= 50 && percent < 100;
    });
}

void GuidedTour::expectResults(const QStringList& results) {
    const QStringList jobs = user_.rows("lstJob");
    expect(jobs.size() == results.size(), QString("%1 jobs").arg(results.size()));
    for (qsizetype i = 0; i < jobs.size(); ++i)
        expect(jobs[i].startsWith(results[i] + " | "), "\"" + results[i] + "\" for " + jobs[i]);
}

void GuidedTour::fillInstallPage() {
    user_.click("cmdISO");
    user_.pickFile(image_);
    user_.waitUntilIdle();
    user_.type("txtGameName", kGame);
    user_.click("cmdCompat");
    user_.clickMenuEntry("mnuFlags(0)");
    user_.clickMenuEntry("mnuFlags(2)");
    user_.clickMenuEntry("mnuDone");
}

void GuidedTour::startInstall() {
    user_.click("cmdInstall");
    user_.waitFor("the status window", [this] { return user_.windowUp("frmStatus"); });
}

void GuidedTour::showBothWindows() {
    user_.bringBack("frmMain");
    user_.moveAside("frmStatus", "frmMain");
}

void GuidedTour::showWindows() {
    user_.bringBack("frmMain");
    user_.waitFor("the status window", [this] { return user_.windowUp("frmStatus"); });
    user_.closeWindow("frmStatus");
    user_.waitFor("the status window to close", [this] { return !user_.windowUp("frmStatus"); });
}

void GuidedTour::waitForPercent(int percent) {
    user_.waitFor(QString::number(percent) + " percent",
                  [this, percent] { return user_.percent("picOverall") >= percent; });
}

void GuidedTour::tell(const QString& picture, const QString& words) {
    const QString file =
        pictures_.filePath(QStringLiteral("%1-%2.png").arg(told_.size() + 1, 2, 10, QChar('0')).arg(picture));
    expect(calmPicture().save(file), "to be able to write " + file);
    told_.append(picture);
    std::printf("%2d  %s\n", static_cast<int>(told_.size()), words.toLocal8Bit().constData());
    std::fflush(stdout);
}

QImage GuidedTour::calmPicture() {
    QImage before, seen = user_.look([] { return screenPicture(); });
    if (user_.windowUp("frmStatus"))
        return seen; // work does not wait
    for (int glance = 1; glance < kMostGlances && !difference(seen, before).isEmpty(); ++glance) {
        std::this_thread::sleep_for(kBetweenGlances);
        before = std::exchange(seen, user_.look([] { return screenPicture(); }));
    }
    return seen;
}

} // namespace tarnwell::tour

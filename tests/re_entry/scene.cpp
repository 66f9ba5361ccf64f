#include "re_entry/scene.h"

#include "interpreter/tool_commands.h"
#include "support/gtest_qt.h"
#include "ui/user_actions.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace tarnwell::test {

namespace {

/// More boxes than this for one thing that the user did are a storm.
constexpr std::size_t kBoxesAnAct = 16;

template <class Answer>
void answer(std::deque<std::optional<Answer>>& answers, Random& random, const Answer& given) {
    answers.clear();
    if (!random.oneIn(3))
        answers.push_back(given);
}

} // namespace

Scene::Scene(std::uint32_t seed) : random(seed) {
    QFile file(path("tarnwell.exe"));
    if (file.open(QIODevice::WriteOnly))
        file.write("the tool");
    for (const char* image : {"chosen.iso", "lantern.iso"})
        demand(QFile(path(image)).open(QIODevice::WriteOnly), "an image to be dropped");
    ports.launcher.script = [this](const QString& commandLine) { return startTool(commandLine); };
    ports.pump.whileWaiting = [this] { wait(false); };
    ports.dialogs.whileOpen = [this] { wait(true); };
    ports.pump.whenEnded = [this] { atEnd_ = effects(); };
}

void Scene::letLoose(User user, const std::set<int>& waits) {
    user_ = user;
    due_ = waits;
    loose_ = true;
    tool.moody = true;
}

void Scene::calmDown() {
    loose_ = false;
    tool.moody = false;
    demand(effects().boxes <= kBoxesAnAct * static_cast<std::size_t>(1 + acts_), "a storm of boxes");
    for (const QString& text : ports.dialogs.messageTexts())
        demand(!text.startsWith("Something went wrong inside the program"), text.toStdString());
    lookAtReports();
    if (ended()) {
        demand(atEnd_ == effects(), "something was done after the end of the program");
        demand(!ports.tray.shown, "the tray icon stays");
    } else {
        lookAtRest();
        tryOut();
    }
}

std::string Scene::story() const {
    std::string text;
    for (const std::string& line : story_)
        text += line + '\n';
    return text;
}

std::optional<ChildScript> Scene::startTool(const QString& commandLine) {
    const QString command = commandLine.mid(path("tarnwell.exe ").size());
    for (const auto& child : ports.launcher.children)
        demand(command.startsWith("poweroff") || !child->runningAt(ports.clock.now),
               "two tools at once: " + child->commandLine.toStdString() + " and " +
                   commandLine.toStdString());
    // A rename is sent to the address whatever is in use.
    demandRightDevice(command, frmMain.optLocal.value ? LocalDeviceLong(frmMain.cmbHD.text())
                                                      : frmMain.txtIP.text.get());
    if (loose_)
        story_.push_back("    tool: " + command.toStdString());
    return tool.answerTo(command);
}

void Scene::wait(bool boxIsOpen) {
    if (!loose_)
        return;
    if (boxIsOpen)
        answerBox();
    if (due_.contains(waits_++))
        act(boxIsOpen);
}

void Scene::act(bool boxIsOpen) {
    const std::vector<Action> possible =
        user_ == User::EndsTheProgram ? actions_.exits() : actions_.all(boxIsOpen);
    if (possible.empty())
        return;
    Action action = random.of(possible);
    // A hidden window has nothing to offer: the user often brings it back first.
    if (user_ == User::DoesAnything && !frmMain.shown() && random.oneIn(2))
        action = {"double click on the tray", [this] { ports.tray.doubleClicked(); }};
    ++acts_;
    story_.push_back("wait " + std::to_string(waits_ - 1) + (boxIsOpen ? ", box open: " : ": ") +
                     action.name);
    action.perform();
    if (user_ == User::EndsTheProgram)
        demand(ended(), "the program goes on after " + action.name);
}

void Scene::answerBox() {
    FakeDialogs& dialogs = ports.dialogs;
    dialogs.questionAnswer = !random.oneIn(3);
    answer<QString>(dialogs.inputAnswers, random, random.oneIn(2) ? "10.0.0.9" : "inject_dvd x");
    answer<QString>(dialogs.openFileAnswers, random, path("chosen.iso"));
    answer<QString>(dialogs.saveFileAnswers, random, path("saved.iso"));
    answer<QString>(dialogs.chooseFolderAnswers, random,
                    random.oneIn(2) ? ports.folders.data : ports.folders.folder);
    answer<ui::Font>(dialogs.chooseFontAnswers, random, {.name = "Sans", .size = 9});
    answer<std::int32_t>(dialogs.chooseColorAnswers, random, 0xff);
}

/// All handlers have returned.
void Scene::lookAtRest() {
    demand(!shared.blnInstallRunning, "blnInstallRunning stands");
    demand(!ports.dialogs.cancelProgress, "a box of progress stays");
    demand(!shared.blnQueryHD && !shared.blnQueryOptical && !shared.blnQuerySettings,
           "a query still waits for its answer");
    demand(frmMain.mousePointer == ui::MousePointer::Default, "the hourglass stays on frmMain");
    demand(frmSettings.mousePointer == ui::MousePointer::Default, "the hourglass stays on frmSettings");
    demand(frmSettings.fmTools.enabled, "the disk tools stay off");
    demand(frmMain.shown() == (frmMain.mnuMinimize.caption.get() == "Minimize"),
           "mnuMinimize does not tell whether frmMain is hidden");
    demandControlsAsDeclared();
    const bool jobs = frmMain.lstJob.count() > 0;
    for (const ui::Button* button : {&frmMain.cmdStart, &frmMain.cmdRemove, &frmMain.cmdClear})
        demand(button->enabled == jobs, button->name.toStdString() + " does not follow the jobs");
    demand(frmMain.txtISO.enabled == frmMain.optISO.value, "txtISO does not follow the source");
    demand(frmMain.cmdISO.enabled == frmMain.optISO.value, "cmdISO does not follow the source");
    demand(frmMain.cmbOptical.enabled == frmMain.optOptical.value, "cmbOptical does not follow the source");
    demand(frmMain.txtIP.visible == frmMain.optLAN.value, "txtIP does not follow the device");
    demand(frmMain.cmbHD.visible == frmMain.optLocal.value, "cmbHD does not follow the device");
    lookAtOrigins();
    lookAtJobs();
    demand(!ports.wakeLock.held, "the machine may never sleep again");
    demand(!ports.session.heldUp, "the user's session may never end again");
}

/// Nothing is called done for which the tool never ran.
void Scene::lookAtReports() {
    const QStringList runs = ports.launcher.commandLines();
    const auto sent = [&](const QString& command) { return runs.filter("tarnwell.exe " + command).size(); };
    for (int i = 0; i < frmMain.lstJob.count(); ++i) {
        const ui::ListView::Row& job = frmMain.lstJob.row(i);
        demand(job.text != "Complete" || sent(job.tag) > 0,
               "a job that never ran is complete: " + job.tag.toStdString());
    }
    const auto told = [&](const char* words) {
        return std::ranges::count_if(ports.tray.balloons,
                                     [&](const auto& balloon) { return balloon.text.endsWith(words); });
    };
    for (const auto& request : ports.dialogs.openFileRequests)
        demand(!request.title.isEmpty(),
               "a dialog that does not say what is picked: " + request.filter.toStdString());
    for (const auto& request : ports.dialogs.saveFileRequests)
        demand(!request.title.isEmpty(),
               "a dialog that does not say what is picked: " + request.filter.toStdString());
    demand(told(" deleted from HDD") <= sent("delete "), "a delete that never ran is told");
    demand(told(" has been formatted for HDLoader") <= sent("initialize "),
           "a format that never ran is told");
}

/// What the window shows was told by the source beside which it stands.
void Scene::lookAtOrigins() {
    constexpr int kStartupColumn = 0; // of those behind the title
    const QString startup = frmMain.txtGameStartup.text;
    demand(startup != MoodyTool::kStartupInImage || frmMain.optISO.value, "an image beside a drive");
    demand(startup != MoodyTool::kStartupOnDisc || frmMain.optOptical.value, "a disc beside an image");
    for (int i = 0; i < frmMain.lstHD.count(); ++i) {
        const QString origin = frmMain.lstHD.row(i).subItems[kStartupColumn];
        // The games of a local disk stay when another is chosen.
        const bool local = origin.startsWith("HDD"), remote = origin.startsWith("NET");
        demand(frmMain.optLocal.value
                   ? !remote
                   : !local && (!remote || origin == MoodyTool::startupOn(frmMain.txtIP.text)),
               "a game of another device: " + origin.toStdString());
        demand(!local || origin == MoodyTool::startupOn(LocalDeviceLong(frmMain.lstHD.row(i).tag)),
               "a game that is taken for one of " + frmMain.lstHD.row(i).tag.toStdString());
    }
}

void Scene::lookAtJobs() {
    for (int i = 0; i < frmMain.lstJob.count(); ++i)
        demandRightDevice(frmMain.lstJob.row(i).tag, {});
}

/// A command names a game of one device, and goes to that device.
void Scene::demandRightDevice(const QString& command, const QString& deviceOfRename) {
    static const QRegularExpression copy("((?:HDD|NET)_\\d{7})@([^\"]*)"),
        work("^(delete|extract|modify) (\\S+) .*?((?:HDD|NET)_\\d{7})");
    const auto copied = copy.match(command), worked = work.match(command);
    const auto origin = copied.hasMatch() ? copied.captured(1) : worked.captured(3);
    if (origin.isEmpty())
        return;
    const bool renames = worked.captured(1) == "modify";
    const QString device = copied.hasMatch() ? copied.captured(2)
                           : renames         ? deviceOfRename
                                             : worked.captured(2);
    demand(origin == MoodyTool::startupOn(device), "sent to another device: " + command.toStdString());
}

/// What is usable from the start is usable again, but for the controls of the source of an install.
void Scene::demandControlsAsDeclared() {
    static const ui::FrmMain fresh;
    for (std::size_t i = 0; i < fresh.controls().size(); ++i) {
        const ui::Control& control = *frmMain.controls()[i];
        if (fresh.controls()[i]->enabled && &control != &frmMain.txtISO && &control != &frmMain.cmdISO)
            demand(control.enabled, control.name.toStdString() + " stays off");
    }
}

/// The user refreshes the console, and finds its games.
void Scene::tryOut() {
    ports.tray.doubleClicked();
    ui::click(frmMain.cmdControls);
    ui::click(frmMain.optLAN);
    ui::type(frmMain.txtIP, "192.168.0.10");
    const std::size_t before = ports.launcher.children.size();
    const std::size_t boxes = effects().boxes;
    demand(ui::click(frmMain.cmdAttach), "the console cannot be refreshed");
    demand(ports.launcher.children.size() == before + 2,
           "a refresh asks the tool something else: " + ports.launcher.lastCommandLine().toStdString());
    // While a failed job's flag stands, the answer counts as that job's output.
    if (shared.blnQueueRunning)
        return;
    demand(effects().boxes == boxes,
           "a refresh shows a box: " + ports.dialogs.messageTexts().join(" | ").toStdString());
    demand(frmMain.lstHD.count() == 2, "a refresh does not list the games");
    demand(frmMain.cmdInstall.enabled, "a refresh does not make cmdInstall usable");
}

Scene::Effects Scene::effects() const {
    const FakeDialogs& dialogs = ports.dialogs;
    return {.toolRuns = ports.launcher.children.size(),
            .boxes = dialogs.messages.size() + static_cast<std::size_t>(dialogs.questions.size()) +
                     dialogs.inputs.size() + dialogs.openFileRequests.size() +
                     dialogs.saveFileRequests.size() + dialogs.chooseFolderRequests.size() +
                     dialogs.chooseFontRequests.size() + dialogs.chooseColorRequests.size(),
            .powerActions = ports.power.shutDowns + ports.power.standBys};
}

void Scene::demand(bool holds, const std::string& what) {
    if (!holds)
        violations_.push_back(what);
}

} // namespace tarnwell::test

#include "tool/tool_channel.h"

#include "base/fault.h"
#include "status/elapsed.h"
#include "tool/stop_tool.h"

#include <QScopeGuard>

namespace tarnwell {

namespace {

constexpr int kAttempts = 4;
constexpr double kPauseSeconds = 2.0;
const char kStoppedToolLives[] =
    "tarnwell.exe was told to stop and has not ended yet. This command waits for it.";

} // namespace

ToolChannel::ToolChannel(Shared& shared, cStdIO& StdIO, OutputInterpreter& interpreter)
    : shared_(shared), StdIO_(StdIO), interpreter_(interpreter) {
    StdIO_.GotData = [this](const QString& Data) { StdIO_GotData(Data); };
}

QString ToolChannel::Tarn_Command(const QString& strCommand) {
    if (const auto answer = ask(strCommand))
        return *answer;
    shared_.message("An unknown error has occurred. Please try restarting the program and make sure to close "
                    "tarnwell.exe by pressing CTRL+ALT+DEL.");
    return {};
}

QString ToolChannel::Tarn_Question(const QString& strCommand) {
    question_ = strCommand;
    questionDropped_ = false;
    const auto asked = qScopeGuard([this] { question_.clear(); });
    return ask(strCommand).value_or(QString());
}

void ToolChannel::dropQuestion() {
    questionDropped_ = true;
    if (!question_.isEmpty() && running_ == question_)
        StdIO_.interrupt();
}

std::optional<QString> ToolChannel::ask(const QString& command) {
    blnGotData_ = false;
    QString answer;
    for (int attempt = 1;; ++attempt) {
        if (StdIO_.Ready())
            answer = run(command);
        if (attempt == kAttempts)
            return std::nullopt;
        if (answeredWithinPause(command))
            return answer;
    }
}

bool ToolChannel::Tarn_Execute(const QString& strRawCommand) {
    if (!StdIO_.Ready()) {
        shared_.message("Unexpected error.", MessageIcon::Stop);
        return false;
    }
    run(strRawCommand);
    return StdIO_.started();
}

QString ToolChannel::run(const QString& command) {
    shared_.frmMain.txtCommand.text = command;
    // It may still be writing to the disk that this command is about.
    if (StdIO_.stoppedToolLives())
        shared_.frmMain.txtOutput.text = kStoppedToolLives;
    WaitForStoppedTool(StdIO_, shared_.ports.pump);
    if (dropped(command))
        return {};
    // Another command may have run inside this wait.
    shared_.frmMain.txtCommand.text = command;
    shared_.frmMain.txtOutput.text = QString();
    unreadableLine_.reset();
    running_ = command;
    const auto over = qScopeGuard([this] { running_.clear(); });
    QString output = StdIO_.ExecuteCommand(shared_.config.ToolPath() + ' ' + command);
    if (const QString& why = StdIO_.whyNotStarted(); !why.isEmpty())
        shared_.frmMain.txtOutput.text = why;
    reportUnreadableLine();
    return output;
}

bool ToolChannel::answeredWithinPause(const QString& command) {
    // Across midnight the difference is negative until the clock has caught up.
    const double start = shared_.ports.clock.secondsSinceMidnight();
    do {
        if (blnGotData_ || dropped(command))
            return true;
        shared_.ports.pump.waitForEvent(EventPump::kLookAgainMilliseconds);
    } while (shared_.ports.clock.secondsSinceMidnight() - start < kPauseSeconds);
    return false;
}

void ToolChannel::StdIO_GotData(const QString& Data) {
    showChunk(Data);
    if (shared_.jobRunning())
        refreshElapsedTimes();
    if (!shared_.blnReadTOC)
        interpret(Data);
    blnGotData_ = true;
}

void ToolChannel::showChunk(const QString& chunk) {
    shared_.frmMain.txtOutput.text = chunk.endsWith("\r\n") ? chunk.chopped(2) : chunk;
}

void ToolChannel::refreshElapsedTimes() {
    const Clock& clock = shared_.ports.clock;
    const QString current = FormatElapsed(MillisecondsSince(shared_.lJobStartTick, clock), clock);
    shared_.frmStatus->lblCurrentElapsed.caption = current;
    shared_.frmStatus->lblOverallElapsed.caption =
        shared_.blnInstallRunning ? current
                                  : FormatElapsed(MillisecondsSince(shared_.lQueueStartTick, clock), clock);
}

void ToolChannel::interpret(const QString& chunk) {
    const bool ofJob = shared_.jobRunning();
    try {
        interpreter_.ParseToolOutput(chunk);
    } catch (const Fault& fault) {
        // The answer to a query is read once more as a whole, and fails there, before its caller. The output
        // of a job is not: the run goes on, and the first line that could not be read is told when it has
        // ended.
        if (ofJob && !unreadableLine_)
            unreadableLine_ = fault.text();
    }
}

void ToolChannel::reportUnreadableLine() {
    if (!unreadableLine_)
        return;
    const QString text = *unreadableLine_;
    unreadableLine_.reset();
    shared_.message(text);
}

bool requireTool(Shared& shared) {
    if (shared.config.toolExists())
        return true;
    shared.message(
        "tarnwell.exe was not found. Place it in the same directory as this program and try again.");
    return false;
}

bool requireIdleTool(Shared& shared, const ToolChannel& channel) {
    if (!channel.busy())
        return true;
    shared.message(
        "tarnwell.exe is still at work, so nothing was started and nothing was changed. Wait until it "
        "has finished and try again.");
    return false;
}

} // namespace tarnwell

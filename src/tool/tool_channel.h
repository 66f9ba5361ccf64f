#pragma once

#include "interpreter/output_interpreter.h"
#include "tool/std_io.h"

#include <optional>

namespace tarnwell {

/// The doors through which commands reach the tool and its output comes back. It is busy while the tool runs;
/// there is no queue of commands. Above it nobody deals with processes, below it nobody knows the tool's
/// language.
class ToolChannel {
public:
    ToolChannel(Shared& shared, cStdIO& StdIO, OutputInterpreter& interpreter);

    /// Runs a command that must answer: a tool that stays silent is run up to four times, two seconds apart,
    /// before the user is told. Returns all that the tool printed, nothing after a failure. Waits for a busy
    /// channel through the same attempts.
    QString Tarn_Command(const QString& strCommand);

    /// One of many questions: as Tarn_Command, but the user is not told of a tool that stays silent, and
    /// `dropQuestion` is the end of it.
    QString Tarn_Question(const QString& strCommand);
    /// Nobody wants the answer to Tarn_Question any more: a tool that is at it gets its interrupt, and is not
    /// run again. May be called again if the tool does not end.
    void dropQuestion();

    /// Runs a command once, whether it prints anything or not. Tells the user if the channel is busy. Returns
    /// whether the tool was started.
    bool Tarn_Execute(const QString& strRawCommand);

    /// The tool is at work.
    bool busy() const { return !StdIO_.Ready(); }

private:
    void StdIO_GotData(const QString& Data);
    /// Nothing if the tool stayed silent to the end.
    std::optional<QString> ask(const QString& command);
    QString run(const QString& command);
    bool answeredWithinPause(const QString& command);
    bool dropped(const QString& command) const { return questionDropped_ && command == question_; }
    void showChunk(const QString& chunk);
    void refreshElapsedTimes();
    void interpret(const QString& chunk);
    void reportUnreadableLine();

    Shared& shared_;
    cStdIO& StdIO_;
    OutputInterpreter& interpreter_;
    bool blnGotData_ = false; ///< something has arrived since the last Tarn_Command began
    std::optional<QString> unreadableLine_;
    QString running_;  ///< the command that the tool is at
    QString question_; ///< what Tarn_Question asks
    bool questionDropped_ = false;
};

/// Tells the user that the tool is missing. Returns whether it is there.
bool requireTool(Shared& shared);

/// Tells the user that the tool is at work for somebody else, and that nothing is done. Returns whether it is
/// free.
bool requireIdleTool(Shared& shared, const ToolChannel& channel);

} // namespace tarnwell

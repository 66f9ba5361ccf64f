#pragma once

#include "base/shared.h"
#include "ui/signal.h"

#include <QStringDecoder>

#include <memory>
#include <vector>

namespace tarnwell {

/// Runs one console program at a time as a hidden child and hands on what it prints while it runs. A call of
/// ExecuteCommand returns when the program has gone, and pumps events all the while: the windows live on, and
/// any handler may run in the middle of a run.
class cStdIO {
public:
    explicit cStdIO(Shared& shared) : shared_(shared) {}

    /// Numbers of the Error event.
    static constexpr int kNotReady = 400;
    static constexpr int kCommandLineEmpty = 401;
    static constexpr int kWrongMoment = 402;
    static constexpr int kCreateProcessFailed = 406;

    ui::Event<const QString&> GotData; ///< one chunk, at most kChunkBytes of output
    ui::Event<> CancelSuccess;         ///< a cancelled run has ended and the program was asked to close
    ui::Event<> CancelFail;            ///< a cancelled run has ended, but the program could not be asked
    ui::Event<> Complete;              ///< a run has ended without being cancelled
    ui::Event<int /*number*/, const QString& /*description*/> Error;

    void setCommandLine(const QString& commandLine);
    const QString& CommandLine() const { return commandLine_; }
    bool Ready() const { return ready_; }
    QString version() const;

    /// Runs `Command`, or the stored command line again if it is empty. Returns all that the program printed;
    /// nothing if another run is under way, if there is nothing to run, or if it cannot be started.
    QString ExecuteCommand(const QString& Command);
    /// Whether the latest command could be started.
    bool started() const { return started_; }
    /// Why the latest command could not be started, for the user; empty if it could.
    const QString& whyNotStarted() const { return whyNotStarted_; }
    /// Ends the run at its next pass and asks the program to close.
    void Cancel();
    /// Writes a line to the program's standard input. Returns the number of bytes written, without the line
    /// end; -1 on failure.
    qint32 WriteData(const QString& strData);

    /// Sends the running program its interrupt. The run ends at once; the program may live on for a while.
    /// Does nothing when no program runs, or when it has been told already. If the system refuses to deliver
    /// the interrupt, the run goes on, and the next call tries again. Returns whether no program runs that
    /// has not been told.
    bool interrupt();
    /// Whether a program that was sent its interrupt still lives.
    bool stoppedToolLives();
    /// Ends the running program and those that were sent their interrupt, wherever they are.
    void endByForce();

private:
    static constexpr int kPassMilliseconds = 30;
    static constexpr qsizetype kChunkBytes = 4096;
    static constexpr qsizetype kPipeBytes = 65536;

    QString run();
    QString fail(int number, const QString& description);
    void readWhileRunning();
    void drain();
    bool takeChunk();
    void endRun();

    Shared& shared_;
    QString commandLine_;
    QString output_;
    QString whyNotStarted_;
    bool cancel_ = false;
    bool ready_ = true;
    bool started_ = false;
    bool interrupted_ = false;
    std::unique_ptr<ChildProcess> child_;
    QStringDecoder decoder_; ///< lives as long as a run: a character can be split between two reads
    std::vector<std::unique_ptr<ChildProcess>> stopped_;
};

} // namespace tarnwell

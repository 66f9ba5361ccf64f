#include "tool/std_io.h"

#include "tool/kill_process.h"

#include <limits>

namespace tarnwell {

QString cStdIO::version() const {
    return "Standard Input/Output Class v0.1 BETA by Corvin Sable";
}

void cStdIO::setCommandLine(const QString& commandLine) {
    if (!ready_) {
        Error(kWrongMoment, "Not ready to change settings.");
        return;
    }
    commandLine_ = commandLine;
}

QString cStdIO::ExecuteCommand(const QString& Command) {
    if (!ready_) {
        Error(kNotReady, "Not ready to process another command.");
        return {};
    }
    ready_ = false;
    started_ = false;
    cancel_ = false;
    interrupted_ = false;
    if (!Command.isEmpty())
        commandLine_ = Command;
    if (commandLine_.isEmpty())
        return fail(kCommandLineEmpty, "Command Line empty.");
    try {
        return run();
    } catch (const std::exception&) {
        // The program may still be at work; nobody reads it any more.
        if (child_)
            stopped_.push_back(std::move(child_));
        ready_ = true;
        throw;
    }
}

QString cStdIO::run() {
    whyNotStarted_.clear();
    child_ = shared_.ports.launcher.start(commandLine_, whyNotStarted_);
    if (!child_)
        return fail(kCreateProcessFailed, "CreateProcess failed.");
    started_ = true;
    output_.clear();
    decoder_ = QStringDecoder(QStringDecoder::System);
    readWhileRunning();
    drain();
    endRun();
    return output_;
}

QString cStdIO::fail(int number, const QString& description) {
    ready_ = true;
    Error(number, description);
    return {};
}

void cStdIO::readWhileRunning() {
    do {
        shared_.ports.pump.pump();
        if (cancel_)
            return;
        shared_.ports.pump.pumpFor(kPassMilliseconds);
        if (takeChunk())
            shared_.ports.pump.pump();
    } while (child_->running() && !interrupted_);
}

void cStdIO::drain() {
    // A program that was told to stop may print on without end. What it had printed by now is no more than
    // the pipe holds.
    qsizetype chunks = interrupted_ ? kPipeBytes / kChunkBytes : std::numeric_limits<qsizetype>::max();
    while (chunks-- > 0 && takeChunk()) {
        shared_.ports.pump.pump();
        if (cancel_)
            return;
    }
}

bool cStdIO::takeChunk() {
    const QByteArray bytes = child_->read(kChunkBytes);
    if (bytes.isEmpty())
        return false;
    const QString chunk = decoder_.decode(bytes);
    output_ += chunk;
    GotData(chunk);
    return true;
}

void cStdIO::endRun() {
    if (!shared_.blnJobDone && shared_.blnQueueRunning)
        shared_.blnJobDone = true;
    const qint64 processId = child_->processId();
    if (interrupted_)
        stopped_.push_back(std::move(child_));
    child_.reset();
    ready_ = true;
    if (!cancel_) {
        Complete();
        return;
    }
    cKillProcess killer(shared_.ports.processes);
    if (killer.KillProcess(processId))
        CancelSuccess();
    else
        CancelFail();
}

void cStdIO::Cancel() {
    if (ready_)
        Error(kWrongMoment, "Not processing a command to cancel.");
    else
        cancel_ = true;
}

qint32 cStdIO::WriteData(const QString& strData) {
    static const QByteArray lineEnd = "\r\n";
    const qint64 written = child_ ? child_->write(strData.toLocal8Bit() + lineEnd) : -1;
    return written < 0 ? -1 : static_cast<qint32>(written - lineEnd.size());
}

bool cStdIO::interrupt() {
    if (child_ && !interrupted_)
        interrupted_ = child_->interrupt();
    return !child_ || interrupted_;
}

void cStdIO::endByForce() {
    if (child_)
        child_->endByForce();
    for (const auto& child : stopped_)
        child->endByForce();
}

bool cStdIO::stoppedToolLives() {
    std::erase_if(stopped_, [](const auto& child) {
        while (!child->read(kChunkBytes).isEmpty()) {
        }
        return !child->running();
    });
    return !stopped_.empty();
}

} // namespace tarnwell

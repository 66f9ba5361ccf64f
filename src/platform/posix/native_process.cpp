#include "platform/native.h"
#include "platform/posix/arguments.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwell::native {

namespace {

class PosixOutputPipe : public OutputPipe {
public:
    PosixOutputPipe() {
        if (::pipe2(ends_, O_CLOEXEC) == 0) {
            // Ours alone: the process expects that a print waits until there is room.
            ::fcntl(ends_[0], F_SETFL, O_NONBLOCK);
        }
    }
    ~PosixOutputPipe() override {
        closeEnd(ends_[0]);
        closeEnd(ends_[1]);
    }
    Q_DISABLE_COPY_MOVE(PosixOutputPipe)

    bool isOpen() const { return ends_[0] >= 0; }
    int endOfProcess() const { return ends_[1]; }

    QByteArray read(qsizetype maximum) override {
        QByteArray bytes(maximum, Qt::Uninitialized);
        bytes.truncate(std::max<ssize_t>(0, ::read(ends_[0], bytes.data(), static_cast<size_t>(maximum))));
        return bytes;
    }
    void processHasStarted() override { closeEnd(ends_[1]); }

private:
    static void closeEnd(int& end) {
        if (end >= 0) {
            ::close(end);
        }
        end = -1;
    }

    int ends_[2]{-1, -1};
};

} // namespace

std::unique_ptr<OutputPipe> prepareProcess(QProcess& process, const QString& program,
                                           const QString& arguments) {
    auto output = std::make_unique<PosixOutputPipe>();
    if (!output->isOpen()) {
        return nullptr;
    }
    // An absolute path, because a bare name would be looked up on PATH.
    process.setProgram(QFileInfo(program).absoluteFilePath());
    process.setArguments(splitArguments(arguments));
    process.setProcessChannelMode(QProcess::ForwardedChannels); // QProcess makes no pipes of its own
    process.setChildProcessModifier([end = output->endOfProcess()] {
        ::dup2(end, STDOUT_FILENO);
        ::dup2(end, STDERR_FILENO);
        ::setsid();                 // a Ctrl+C at our own terminal, or its end, is no matter of the child
        ::signal(SIGPIPE, SIG_IGN); // nor is our exit: it may go on and fail to print
        ::signal(SIGINT, SIG_DFL);  // a shell that started us in the background has it ignored
    });
    return output;
}

QString hintAtStart(const QString& program) {
    if (QFileInfo(program).isExecutable()) {
        return {};
    }
    return "It is not marked as a program. In a terminal this marks it: chmod +x \"" + program + '"';
}

QString wordsOfError(const QString& words) {
    return words;
}

bool interruptProcess(qint64 processId) {
    // The whole session, as a terminal does: the program may have been started through a script.
    return ::kill(-static_cast<pid_t>(processId), SIGINT) == 0;
}

} // namespace tarnwell::native

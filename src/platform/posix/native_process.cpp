#include "platform/native.h"
#include "platform/posix/command_line.h"

#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <unistd.h>

namespace tarnwell::native {

bool prepareProcess(QProcess& process, const QString& commandLine) {
    const std::optional<SplitCommand> command = splitCommandLine(commandLine);
    if (!command) {
        return false;
    }
    // An absolute path, because a bare name would be looked up on PATH.
    process.setProgram(QFileInfo(command->program).absoluteFilePath());
    process.setArguments(command->arguments);
    process.setChildProcessModifier([] {
        ::setsid();                 // a Ctrl+C at our own terminal, or its end, is no matter of the child
        ::signal(SIGPIPE, SIG_IGN); // nor is our exit: it may go on and fail to print
        ::signal(SIGINT, SIG_DFL);  // a shell that started us in the background has it ignored
    });
    return true;
}

bool interruptProcess(qint64 processId) {
    // The whole session, as a terminal does: the program may have been started through a script.
    return ::kill(-static_cast<pid_t>(processId), SIGINT) == 0;
}

} // namespace tarnwell::native

#pragma once

#include "platform/ports.h"

#include <memory>

class QObject;
class QProcess;

/// What differs between the operating systems, each behind one function. Every system has a folder beside
/// this file that defines all of them; the build takes one of the folders.
namespace tarnwell::native {

/// Our end of the pipe into which a process prints. A pipe takes in a few thousand bytes; a program that
/// prints faster than it is read has to wait, so that what is read is never old and no flood fills the
/// memory.
class OutputPipe {
public:
    virtual ~OutputPipe() = default;
    /// Takes what waits, at most `maximum` bytes. Never blocks.
    virtual QByteArray read(qsizetype maximum) = 0;
    /// Lets go of the other end, which from now on is the process's alone.
    virtual void processHasStarted() = 0;
};

/// Sets up a process that has not been started: its program, which is a file, and its arguments, which are as
/// they stand behind it in a command line (see ProcessLauncher::start), a pipe for what it prints, a life of
/// its own that outlasts this program, no window. Null if the system has no more pipes.
std::unique_ptr<OutputPipe> prepareProcess(QProcess& process, const QString& program,
                                           const QString& arguments);

/// What the user can do about a program that the system refuses to start; empty if nothing is known.
QString hintAtStart(const QString& program);

/// What the system says of a failed start, if the toolkit gave only the number of the error for it; else
/// `words`.
QString wordsOfError(const QString& words);

/// Sends the interrupt of Ctrl+C to a process that `prepareProcess` has set up and that runs.
/// False if the system refused.
bool interruptProcess(qint64 processId);

/// The path of the system's command interpreter.
QString commandInterpreter();

/// What SystemFolders tells of the user's folders.
QString applicationData();
std::optional<WindowsProfile> windowsProfile();

/// The other name that Windows keeps for a file or folder, of few and plain characters; empty if there is
/// none.
QString shortPath(const QString& path);

/// Calls `appears` once when a tray takes icons: at once if there is one, else out of an event, for a panel
/// may be started after this program. The wait ends with what is returned.
std::unique_ptr<QObject> whenTrayAppears(const std::function<void()>& appears);

/// Shows a balloon by the desktop's own means, beside the tray and without a word to its icon. False if the
/// desktop has none.
bool showNotification(const QString& title, const QString& text);

std::unique_ptr<Processes> makeProcesses();
std::unique_ptr<Sound> makeSound();
std::unique_ptr<Power> makePower();
std::unique_ptr<Ping> makePing();
std::unique_ptr<HttpListener> makeHttpListener();
std::unique_ptr<WakeLock> makeWakeLock();
std::unique_ptr<DesktopSession> makeDesktopSession();
std::unique_ptr<TaskbarProgress> makeTaskbarProgress();

} // namespace tarnwell::native

#pragma once

#include "platform/ports.h"

#include <memory>

class QProcess;

/// What differs between the operating systems, each behind one function. Every system has a folder beside
/// this file that defines all of them; the build takes one of the folders.
namespace tarnwell::native {

/// Sets up a process that has not been started: its program and arguments out of a command line (see
/// ProcessLauncher::start), a life of its own that outlasts this program, no window. False if the command
/// line names no program.
bool prepareProcess(QProcess& process, const QString& commandLine);

/// Sends the interrupt of Ctrl+C to a process that `prepareProcess` has set up and that runs.
void interruptProcess(qint64 processId);

/// The path of the system's command interpreter.
QString commandInterpreter();

/// What SystemFolders tells of the user's folders.
QString applicationData();
std::optional<WindowsProfile> windowsProfile();

/// The other name that Windows keeps for a file or folder, of few and plain characters; empty if there is
/// none.
QString shortPath(const QString& path);

std::unique_ptr<Processes> makeProcesses();
std::unique_ptr<Sound> makeSound();
std::unique_ptr<Power> makePower();
std::unique_ptr<Ping> makePing();
std::unique_ptr<WakeLock> makeWakeLock();
std::unique_ptr<TaskbarProgress> makeTaskbarProgress();

} // namespace tarnwell::native

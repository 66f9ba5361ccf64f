#include "simulator/tool_runner.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

RunningTool::RunningTool(const fs::path& program, const Words& arguments, const fs::path& workingFolder) {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    posix_spawn_file_actions_addchdir_np(&actions, workingFolder.c_str());
    Words words = arguments;
    words.insert(words.begin(), program.string());
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    pid_t process = -1;
    const int error = posix_spawn(&process, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    pipe_ = ends[0];
    process_ = error == 0 ? process : kNone;
}

void RunningTool::interrupt() const {
    ::kill(static_cast<pid_t>(process_), SIGINT);
}

void RunningTool::kill() const {
    ::kill(static_cast<pid_t>(process_), SIGKILL);
}

void RunningTool::closePipe() {
    if (pipe_ != kNone)
        close(static_cast<int>(pipe_));
    pipe_ = kNone;
}

std::optional<std::string> RunningTool::receive(std::chrono::milliseconds patience) {
    const int pipe = static_cast<int>(pipe_);
    pollfd wanted{pipe, POLLIN, 0};
    if (poll(&wanted, 1, static_cast<int>(patience.count())) == 0)
        return std::nullopt;
    char buffer[4096];
    const ssize_t got = ::read(pipe, buffer, sizeof buffer);
    return std::string(buffer, got > 0 ? static_cast<std::size_t>(got) : 0);
}

bool RunningTool::running() {
    int status = 0;
    if (process_ != kNone && waitpid(static_cast<pid_t>(process_), &status, WNOHANG) == process_) {
        exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        process_ = kNone;
    }
    return process_ != kNone;
}

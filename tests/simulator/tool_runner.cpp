#include "simulator/tool_runner.h"

#include "simulator/key_value_file.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

/// No program in these tests takes longer; one that does is killed, and the test fails.
constexpr auto kPatience = 20s;

std::string uniqueFolderName() {
    std::string pattern = (fs::temp_directory_path() / "simulated-tool-XXXXXX").string();
    return mkdtemp(pattern.data());
}

} // namespace

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
    const int error = posix_spawn(&process_, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    pipe_ = ends[0];
    if (error != 0)
        process_ = -1;
}

RunningTool::~RunningTool() {
    if (process_ > 0) {
        kill();
        wait();
    }
    closePipe();
}

void RunningTool::interrupt() const {
    ::kill(process_, SIGINT);
}

void RunningTool::kill() const {
    ::kill(process_, SIGKILL);
}

void RunningTool::closePipe() {
    if (pipe_ >= 0)
        close(pipe_);
    pipe_ = -1;
}

std::string RunningTool::readSome() {
    pollfd wanted{pipe_, POLLIN, 0};
    if (poll(&wanted, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count())) == 0) {
        ADD_FAILURE() << "The tool says nothing and does not end";
        kill();
    }
    char buffer[4096];
    const ssize_t got = ::read(pipe_, buffer, sizeof buffer);
    std::string piece(buffer, got > 0 ? static_cast<std::size_t>(got) : 0);
    text_ += piece;
    return piece;
}

bool RunningTool::readUntil(const std::string& part) {
    while (text_.find(part) == std::string::npos) {
        if (readSome().empty())
            return false;
    }
    return true;
}

Result RunningTool::finish() {
    while (pipe_ >= 0 && !readSome().empty()) {
    }
    wait();
    return {text_, exitCode_};
}

bool RunningTool::running() {
    int status = 0;
    if (process_ > 0 && waitpid(process_, &status, WNOHANG) == process_) {
        exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        process_ = -1;
    }
    return process_ > 0;
}

void RunningTool::wait() {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (running()) {
        if (std::chrono::steady_clock::now() > deadline) {
            ADD_FAILURE() << "The tool does not end";
            kill();
        }
        std::this_thread::sleep_for(1ms);
    }
}

Result runProgram(const fs::path& program, const Words& arguments, const fs::path& workingFolder) {
    return RunningTool(program, arguments, workingFolder).finish();
}

ScratchFolder::ScratchFolder() : path_(uniqueFolderName()) {}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

SimulatedTool::SimulatedTool() {
    fs::copy_file(SIMULATOR_EXECUTABLE, program());
    const fs::path world = worldFolder();
    simulator::Disk::create(world / "disks" / "hdd1", "hdd1:", 1024, true);
    simulator::Disk::create(world / "disks" / "hdd2", "hdd2:", 1024, true);
    simulator::Disk::create(world / "disks" / "hdd3", "hdd3:", 2048, false);
    simulator::Disk::create(world / "console" / "127.0.0.1", "127.0.0.1", 1024, true);
    fs::create_directories(world / "drives");
    fs::create_directories(world / "discs");
    simulator::writeDiscImage(world / "discs" / "game.iso",
                              {"DISC", "SLUS_999.99", simulator::kSmallestDiscBytes});
    write(world / "drives" / "cd0.ini", "image =\n");
    write(world / "drives" / "cd1.ini", "image = discs/game.iso\n");
}

simulator::Disk SimulatedTool::disk(const std::string& name) const {
    return {worldFolder() / "disks" / name, name + ":"};
}

simulator::Disk SimulatedTool::console() const {
    return {worldFolder() / "console" / "127.0.0.1", "127.0.0.1"};
}

void SimulatedTool::makeImage(const std::string& file, const std::string& startup, std::uint64_t bytes,
                              const std::string& label) const {
    simulator::writeDiscImage(folder() / file, {label, startup, bytes});
}

std::string SimulatedTool::read(const fs::path& file) {
    return simulator::readWholeFile(file);
}

void SimulatedTool::write(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::size_t SimulatedTool::filesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

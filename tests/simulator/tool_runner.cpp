#include "simulator/tool_runner.h"

#include "simulator/key_value_file.h"
#include "simulator/os.h"

#include <fstream>
#include <iterator>
#include <random>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

/// No program in these tests takes longer; one that does is killed, and the test fails.
constexpr auto kPatience = 20s;

fs::path newFolder() {
    std::random_device random;
    for (;;) {
        fs::path folder = fs::temp_directory_path() / ("simulated-tool-" + std::to_string(random()));
        if (fs::create_directory(folder))
            return folder;
    }
}

} // namespace

RunningTool::~RunningTool() {
    if (process_ != kNone) {
        kill();
        wait();
    }
    closePipe();
}

std::string RunningTool::readSome() {
    std::optional<std::string> piece = receive(kPatience);
    if (!piece) {
        ADD_FAILURE() << "The tool says nothing and does not end";
        kill();
        piece = receive(kPatience);
    }
    text_ += piece.value_or("");
    return piece.value_or("");
}

bool RunningTool::readUntil(const std::string& part) {
    while (text_.find(part) == std::string::npos) {
        if (readSome().empty())
            return false;
    }
    return true;
}

Result RunningTool::finish() {
    while (pipe_ != kNone && !readSome().empty()) {
    }
    wait();
    return {text_, exitCode_};
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

fs::path builtProgram(const char* name) {
    return simulator::os::executableFolder("") / name;
}

Result runProgram(const fs::path& program, const Words& arguments, const fs::path& workingFolder) {
    return RunningTool(program, arguments, workingFolder).finish();
}

ScratchFolder::ScratchFolder() : path_(newFolder()) {}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

SimulatedTool::SimulatedTool() {
    fs::copy_file(builtProgram("tarnwell.exe"), program());
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

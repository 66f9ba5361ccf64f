// Runs the simulated tool as the program would, in a world that lives as long as the test.
#pragma once

#include "simulator/disk.h"
#include "simulator/iso9660_writer.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

using Words = std::vector<std::string>;

struct Result {
    std::string text; ///< standard output and standard error as they came, through one pipe
    int exitCode = -1;
};

/// A running program. Whatever goes wrong, it is gone when this is. What systems do differently is in
/// tool_runner_posix.cpp and tool_runner_windows.cpp.
class RunningTool {
public:
    RunningTool(const std::filesystem::path& program, const Words& arguments,
                const std::filesystem::path& workingFolder);
    ~RunningTool();
    RunningTool(const RunningTool&) = delete;
    RunningTool& operator=(const RunningTool&) = delete;

    void interrupt() const;
    void kill() const;
    /// Nobody reads any more.
    void closePipe();
    /// What arrives next, by as much as one read gives; empty at the end.
    std::string readSome();
    /// Reads until the text so far holds `part`. False if the output ends first.
    bool readUntil(const std::string& part);
    /// Reads to the end and waits.
    Result finish();
    bool running();

private:
    static constexpr std::intptr_t kNone = -1;

    void wait();
    /// What arrives next, empty at the end. Nothing if nothing comes in time.
    std::optional<std::string> receive(std::chrono::milliseconds patience);

    // As the system knows them.
    std::intptr_t process_ = kNone;
    std::intptr_t pipe_ = kNone;
    int exitCode_ = -1;
    std::string text_;
};

/// A program that lies beside the tests.
std::filesystem::path builtProgram(const char* name);

Result runProgram(const std::filesystem::path& program, const Words& arguments,
                  const std::filesystem::path& workingFolder);

/// A folder of its own, removed at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// A copy of the tool beside a small world: hdd1 and hdd2 formatted with 1024 MB, hdd3 not formatted; drive
/// cd0 empty, cd1 (E:) with a game; a formatted console at 127.0.0.1; nothing installed. The tool runs in
/// `folder()`.
class SimulatedTool : public testing::Test {
protected:
    SimulatedTool();

    std::filesystem::path folder() const { return scratch_.path(); }
    std::filesystem::path worldFolder() const { return folder() / "tarnwell-simulator"; }
    std::filesystem::path gamesFolder(const std::string& disk = "hdd1") const {
        return worldFolder() / "disks" / disk / "games";
    }
    simulator::Disk disk(const std::string& name) const;
    simulator::Disk console() const;

    std::filesystem::path program() const { return folder() / "tarnwell.exe"; }
    Result run(const Words& arguments) const { return runProgram(program(), arguments, folder()); }
    std::string text(const Words& arguments) const { return run(arguments).text; }

    void behave(const std::string& lines) const { write(worldFolder() / "behaviour.txt", lines); }
    std::string log() const { return read(worldFolder() / "log.txt"); }

    /// Makes an image of a game in the tool's folder.
    void makeImage(const std::string& file, const std::string& startup = "SLUS_123.45",
                   std::uint64_t bytes = simulator::kSmallestDiscBytes,
                   const std::string& label = "LABEL") const;

    static std::string read(const std::filesystem::path& file);
    static void write(const std::filesystem::path& file, const std::string& bytes);
    static std::size_t filesIn(const std::filesystem::path& folder);

private:
    ScratchFolder scratch_;
};

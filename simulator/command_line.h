// From a command line to a command.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace simulator {

/// Runs one command in the world of this folder, from its first byte of output to its note in the log.
/// Returns the exit code.
int runTool(const std::filesystem::path& worldFolder, const std::vector<std::string>& words);

} // namespace simulator

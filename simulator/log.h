// What the tool was asked and how that ended, for people and tests to look at.
#pragma once

#include <filesystem>
#include <string>

namespace simulator {

class Log {
public:
    /// Notes the start of a command.
    Log(std::filesystem::path file, const std::string& commandLine);

    void note(const std::string& text) const;

private:
    std::filesystem::path file_;
};

} // namespace simulator

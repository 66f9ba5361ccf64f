// What the tool has been told to do besides its work: be slow, fail, fall silent. Read from behaviour.txt.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

struct Behaviour {
    int startDelayMs = 0;
    int delayMsPerStep = 0;
    std::uint64_t bytesPerSecond = 0; ///< 0: as fast as it goes

    std::string notice;
    int noiseBytes = 0;
    int floodLines = 0;

    std::string failure; ///< text of a planned failure; empty: none
    int failAtPercent = 0;
    std::optional<int> hangAtPercent;
    std::optional<int> exitAtPercent;
    std::optional<int> exitCode;
    bool ignoresInterrupt = false;
    bool poweroffLasts = false;

    bool silent = false;
    std::optional<std::size_t> cutAfter;
    std::vector<std::size_t> splitAfter; ///< ascending
    int splitPauseMs = 0;

    /// What the file says of this command. A missing file says nothing.
    static Behaviour read(const std::filesystem::path& file, const std::string& command);

    /// The text of a new behaviour.txt: every key, explained and switched off.
    static std::string explanation();
};

} // namespace simulator

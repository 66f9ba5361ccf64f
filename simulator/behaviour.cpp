#include "behaviour.h"

#include "failure.h"
#include "key_value_file.h"

#include <algorithm>
#include <limits>
#include <sstream>

namespace simulator {

namespace {

constexpr int kUsualSplitPauseMs = 60;

int smallNumber(const KeyValues& values, const char* key, int otherwise = 0) {
    return static_cast<int>(
        std::min<long long>(values.number(key, otherwise), std::numeric_limits<int>::max()));
}

std::optional<int> optionalNumber(const KeyValues& values, const char* key) {
    return parseNumber(values.text(key)) ? std::optional(smallNumber(values, key)) : std::nullopt;
}

std::vector<std::size_t> numberList(const std::string& text) {
    std::vector<std::size_t> numbers;
    std::istringstream words(text);
    for (std::string word; std::getline(words, word, ',');) {
        if (const auto number = parseNumber(word))
            numbers.push_back(static_cast<std::size_t>(*number));
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

} // namespace

Behaviour Behaviour::read(const std::filesystem::path& file, const std::string& command) {
    KeyValues values;
    for (const auto& [heading, section] : parseSections(readWholeFile(file))) {
        if (heading.empty() || heading == command)
            values.merge(section);
    }
    Behaviour behaviour;
    behaviour.startDelayMs = smallNumber(values, "start_delay_ms");
    behaviour.delayMsPerStep = smallNumber(values, "delay_ms_per_step");
    behaviour.bytesPerSecond = static_cast<std::uint64_t>(values.number("bytes_per_second"));
    behaviour.notice = values.text("notice");
    behaviour.noiseBytes = smallNumber(values, "binary_noise");
    behaviour.floodLines = smallNumber(values, "flood_lines");
    behaviour.failure = failureText(trimmed(values.text("fail")));
    behaviour.failAtPercent = smallNumber(values, "fail_at_percent");
    behaviour.hangAtPercent = optionalNumber(values, "hang_at_percent");
    behaviour.exitAtPercent = optionalNumber(values, "exit_at_percent");
    behaviour.exitCode = optionalNumber(values, "exit_code");
    behaviour.ignoresInterrupt = values.yes("ignore_interrupt");
    behaviour.poweroffLasts = values.yes("poweroff_lasts");
    behaviour.silent = values.yes("silent");
    if (const auto bytes = parseNumber(values.text("cut_after")))
        behaviour.cutAfter = static_cast<std::size_t>(*bytes);
    behaviour.splitAfter = numberList(values.text("split_after"));
    behaviour.splitPauseMs = smallNumber(values, "split_pause_ms", kUsualSplitPauseMs);
    return behaviour;
}

std::string Behaviour::explanation() {
    return R"(# What the simulated tool does besides its work. Read at every start of the tool; take the "# " from a line with "="
# to switch it on. Lines in front of the first [command] count for every command, lines behind it for that one alone.
# Percents: inject, extract and dump pass every number from 0 to 100; the other commands pass 0 and 100.

# A pause at each percent of a copy.
# delay_ms_per_step = 100
# How fast a copy goes.
# bytes_per_second = 3670016
# A pause before anything happens.
# start_delay_ms = 2000

# A line in front of all other output.
# notice = Checking the disk...
# So many bytes of every value in front of all other output.
# binary_noise = 512
# So many lines (of progress, for a copy) in front of all other output.
# flood_lines = 100000

# A failure: connection_closed, refused, connection_attempt, interrupted, unsupported, file_exists, no_space, disk_full,
# parameter, spti, not_ready, not_ps2_disc, bad_isofs, not_ps2_hdd, or a text of your own.
# fail = no_space
# When it fails; 0 if nothing is said.
# fail_at_percent = 45
# From then on nothing happens until the interrupt comes.
# hang_at_percent = 45
# The tool is gone at once, without a word or any tidying.
# exit_at_percent = 45
# What the tool returns at its end, however it went.
# exit_code = 3
# The tool works on through Ctrl+C.
# ignore_interrupt = yes
# A powered off console no longer answers: poweroff sets "answers = no" in its console.ini.
# poweroff_lasts = yes

# Works, but prints nothing.
# silent = yes
# Prints no more than so many bytes.
# cut_after = 200
# A pause in the output behind so many bytes, and how long it is.
# split_after = 7,100
# split_pause_ms = 60

# [inject_dvd]
# delay_ms_per_step = 300
)";
}

} // namespace simulator

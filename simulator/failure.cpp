#include "failure.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace simulator {

Failure failureOf(const std::string& subject, const std::string& text) {
    return Failure(subject + (subject.ends_with(':') ? " " : ": ") + text);
}

std::string systemWords(const std::error_code& error) {
    static const std::pair<std::errc, const char*> table[] = {
        {std::errc::no_such_file_or_directory, words::kFileNotFound},
        {std::errc::not_a_directory, "The system cannot find the path specified."},
        {std::errc::file_exists, words::kFileExists},
        {std::errc::no_space_on_device, words::kDiskFull},
        {std::errc::file_too_large, words::kDiskFull},
        {std::errc::permission_denied, "Access is denied."},
        {std::errc::operation_not_permitted, "Access is denied."},
        {std::errc::read_only_file_system, "The media is write protected."},
        {std::errc::is_a_directory, "Access is denied."},
        {std::errc::filename_too_long, "The filename or extension is too long."},
    };
    const auto* found = std::find_if(std::begin(table), std::end(table), [&](const auto& entry) {
        return error == std::make_error_condition(entry.first);
    });
    if (found != std::end(table))
        return found->second;
    return "The request could not be performed because of an I/O device error.";
}

std::string failureText(const std::string& name) {
    static const std::pair<const char*, std::string> table[] = {
        {"connection_closed", words::kConnectionClosed},
        {"refused", words::kRefused},
        {"connection_attempt", words::kNoAnswer},
        {"interrupted", words::kInterrupted},
        {"unsupported", words::kUnsupported},
        {"file_exists", std::string("game: ") + words::kFileExists},
        {"no_space", words::kNoFreeSpace},
        {"disk_full", words::kDiskFull},
        {"parameter", words::kParameter},
        {"spti", words::kSpti},
        {"not_ready", words::kNotReady},
        {"not_ps2_disc", words::kNotPs2Disc},
        {"bad_isofs", words::kBadIso},
        {"not_ps2_hdd", words::kNotPs2Disk},
    };
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [&](const auto& entry) { return name == entry.first; });
    return found == std::end(table) ? name : found->second;
}

} // namespace simulator

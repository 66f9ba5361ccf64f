#include "disc_info.h"

#include "failure.h"
#include "iso9660_reader.h"
#include "key_value_file.h"

#include <algorithm>
#include <sstream>

namespace simulator {

namespace {

/// No CD holds more than 99 minutes; no single layer of a DVD more than this many sectors.
constexpr std::uint64_t kLargestCdBytes = std::uint64_t{99} * 60 * 75 * 2048;
constexpr std::uint64_t kLargestLayerBytes = std::uint64_t{2298496} * 2048;

/// "BOOT2 = cdrom0:\SLUS_123.45;1" gives SLUS_123.45.
std::string startupFile(const std::string& systemCnf) {
    std::istringstream lines(systemCnf);
    for (std::string line; std::getline(lines, line);) {
        const auto equals = line.find('=');
        if (equals == std::string::npos || trimmed(line.substr(0, equals)) != "BOOT2")
            continue;
        std::string file = trimmed(line.substr(equals + 1));
        file.erase(std::min(file.find(';'), file.size()));
        file.erase(0, file.find_last_of("\\/:") + 1);
        std::replace_if(
            file.begin(), file.end(), [](unsigned char c) { return c <= ' ' || c == '"'; }, '_');
        return file;
    }
    return {};
}

} // namespace

DiscInfo readDiscInfo(ByteSource& disc) {
    Iso9660Reader image(disc);
    DiscInfo info;
    info.label = image.label();
    info.startup = startupFile(image.file("SYSTEM.CNF").value_or(""));
    if (info.startup.empty())
        throw failureOf(disc.subject(), words::kNotPs2Disc);
    info.sizeBytes = disc.size();
    info.type = disc.size() > kLargestCdBytes ? "DVD" : "CD";
    info.dualLayer = disc.size() > kLargestLayerBytes;
    return info;
}

} // namespace simulator

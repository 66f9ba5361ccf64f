#include "world.h"

#include "failure.h"
#include "key_value_file.h"
#include "os.h"

#include <algorithm>
#include <cctype>

namespace simulator {

namespace fs = std::filesystem;

namespace {

/// The number behind a prefix: 10 of "hdd10".
std::optional<long long> numberBehind(const std::string& prefix, const std::string& name) {
    if (!name.starts_with(prefix) || name.size() == prefix.size() ||
        !std::isdigit(static_cast<unsigned char>(name[prefix.size()])))
        return std::nullopt;
    return parseNumber(name.substr(prefix.size()));
}

struct NumberedEntry {
    long long number;
    fs::path path;
};

/// Entries of a folder called prefix, number, extension, in the order of their numbers.
std::vector<NumberedEntry> numberedEntries(const fs::path& folder, const std::string& prefix,
                                           const std::string& extension) {
    std::vector<NumberedEntry> entries;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const auto number = numberBehind(prefix, entry.path().stem().string());
        if (number && entry.path().extension() == extension)
            entries.push_back({*number, entry.path()});
    }
    std::sort(entries.begin(), entries.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return entries;
}

std::string withoutColon(std::string name) {
    if (name.ends_with(':'))
        name.pop_back();
    return name;
}

Drive readDrive(const fs::path& folder, const NumberedEntry& entry, std::size_t place) {
    const KeyValues values = readKeyValues(entry.path);
    const std::string image = trimmed(values.text("image"));
    Drive drive;
    drive.name = "cd" + std::to_string(entry.number) + ":";
    drive.letter = std::string(1, static_cast<char>('D' + place)) + ":";
    drive.loaded = !image.empty();
    drive.disc = folder / os::pathFromText(image);
    drive.discBytes = static_cast<std::uint64_t>(values.number("size_bytes"));
    return drive;
}

} // namespace

bool isLocalDiskName(const std::string& name) {
    return numberBehind("hdd", withoutColon(name)).has_value();
}

bool isNetworkAddress(const std::string& name) {
    return std::count(name.begin(), name.end(), '.') == 3 &&
           std::all_of(name.begin(), name.end(), [](unsigned char c) { return std::isdigit(c) || c == '.'; });
}

ByteSource Drive::open() const {
    if (!discSize())
        throw failureOf(name, words::kNotReady);
    ByteSource source(disc, name, discBytes);
    source.setReadFailure(words::kSpti);
    return source;
}

std::optional<std::uint64_t> Drive::discSize() const {
    std::error_code error;
    const std::uint64_t stored = loaded ? fs::file_size(disc, error) : 0;
    if (!loaded || error)
        return std::nullopt;
    return std::max(stored, discBytes);
}

std::vector<Disk> World::localDisks() const {
    std::vector<Disk> disks;
    for (const auto& entry : numberedEntries(folder_ / "disks", "hdd", ""))
        disks.emplace_back(entry.path, entry.path.filename().string() + ":");
    return disks;
}

std::vector<Drive> World::drives() const {
    std::vector<Drive> drives;
    for (const auto& entry : numberedEntries(folder_ / "drives", "cd", ".ini"))
        drives.push_back(readDrive(folder_, entry, drives.size()));
    return drives;
}

Disk World::device(const std::string& name) const {
    if (!isLocalDiskName(name))
        return console(name);
    const fs::path folder = folder_ / "disks" / withoutColon(name);
    if (!fs::is_directory(folder))
        throw failureOf(name, words::kFileNotFound);
    return {folder, withoutColon(name) + ":"};
}

Disk World::console(const std::string& address) const {
    const fs::path folder = folder_ / "console" / address;
    if (!isNetworkAddress(address) || !fs::is_directory(folder))
        throw failureOf(address, words::kNoAnswer);
    const std::string answers = trimmed(readKeyValues(folder / "console.ini").text("answers", "yes"));
    if (answers == "refuses")
        throw failureOf(address, words::kRefused);
    if (answers != "yes")
        throw failureOf(address, words::kNoAnswer);
    return {folder, address};
}

std::optional<Drive> World::drive(const std::string& name) const {
    std::string wanted = withoutColon(name);
    const bool letter = wanted.size() == 1 && name.ends_with(':');
    if (letter)
        wanted[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(wanted[0])));
    for (const Drive& drive : drives()) {
        if (withoutColon(letter ? drive.letter : drive.name) == wanted)
            return drive;
    }
    return std::nullopt;
}

ByteSource World::openDisc(const std::string& name) const {
    if (const auto found = drive(name))
        return found->open();
    return {os::pathFromText(name), name};
}

void World::switchOff(const std::string& address) const {
    KeyValues values;
    values.set("answers", std::string("no"));
    writeWholeFile(folder_ / "console" / address / "console.ini", values.toText());
}

} // namespace simulator

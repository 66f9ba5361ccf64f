#include "iso9660_writer.h"

#include "iso9660.h"
#include "pending_file.h"

#include <algorithm>
#include <random>
#include <vector>

namespace simulator {

using namespace iso9660;

namespace {

constexpr std::uint32_t kTerminatorSector = 17;
constexpr std::uint32_t kLittlePathTableSector = 18;
constexpr std::uint32_t kBigPathTableSector = 19;
constexpr std::uint32_t kRootSector = 20;
constexpr std::uint32_t kFirstFileSector = 21;
constexpr std::uint32_t kPathTableBytes = 10;
constexpr std::uint64_t kLargestPayload = 1024 * kMb;
constexpr std::size_t kNoiseBytes = 64 * kKb;

class Sector {
public:
    Sector() : bytes_(kSectorBytes, '\0') {}

    const std::vector<char>& bytes() const { return bytes_; }

    void byte(std::size_t at, unsigned value) { bytes_.at(at) = static_cast<char>(value); }
    void text(std::size_t at, std::string_view text) {
        std::copy(text.begin(), text.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at));
    }
    /// A text field of fixed length, filled with blanks.
    void field(std::size_t at, std::size_t length, std::string_view value) {
        text(at, std::string(length, ' '));
        text(at, value.substr(0, length));
    }
    void little(std::size_t at, std::size_t length, std::uint32_t value) {
        for (std::size_t i = 0; i < length; ++i)
            byte(at + i, value >> (8 * i) & 0xFF);
    }
    void big(std::size_t at, std::size_t length, std::uint32_t value) {
        for (std::size_t i = 0; i < length; ++i)
            byte(at + i, value >> (8 * (length - 1 - i)) & 0xFF);
    }
    /// A number in both byte orders, each `length` bytes long.
    void both(std::size_t at, std::size_t length, std::uint32_t value) {
        little(at, length, value);
        big(at + length, length, value);
    }

private:
    std::vector<char> bytes_;
};

struct File {
    std::string name;
    std::uint32_t sector;
    std::uint32_t bytes;
    std::string head; ///< what is really written of it
};

std::uint32_t sectorsOf(std::uint64_t bytes) {
    return static_cast<std::uint32_t>((bytes + kSectorBytes - 1) / kSectorBytes);
}

/// Bytes without a pattern, the same for the same seed, so that a wrong or shifted copy shows.
std::string noise(std::uint32_t seed) {
    std::minstd_rand numbers(seed + 1);
    std::string bytes(kNoiseBytes, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(numbers() >> 8 & 0xFF);
    return bytes;
}

std::vector<File> layOutFiles(const DiscContents& contents) {
    std::vector<File> files;
    std::uint32_t next = kFirstFileSector;
    const auto add = [&](const std::string& name, std::string head, std::uint64_t bytes) {
        files.push_back({name + ";1", next, static_cast<std::uint32_t>(bytes), std::move(head)});
        next += sectorsOf(bytes);
    };
    const auto addText = [&](const std::string& name, const std::string& text) {
        add(name, text, text.size());
    };

    if (contents.startup.empty()) {
        addText("README.TXT", "This disc holds no game.\r\n");
    } else {
        addText("SYSTEM.CNF",
                "BOOT2 = cdrom0:\\" + contents.startup + ";1\r\nVER = 1.00\r\nVMODE = NTSC\r\n");
        add(contents.startup, noise(1), kNoiseBytes);
    }
    for (std::uint32_t number = 0; std::uint64_t{next} * kSectorBytes < contents.size; ++number) {
        const std::uint64_t left = contents.size - std::uint64_t{next} * kSectorBytes;
        const std::uint64_t bytes = std::min(left, kLargestPayload);
        add("DATA" + std::to_string(number) + ".BIN", noise(number + 2).substr(0, bytes), bytes);
    }
    return files;
}

std::size_t putRecord(Sector& sector, std::size_t at, std::string_view name, std::uint32_t extent,
                      std::uint32_t bytes, unsigned flags) {
    const std::size_t length = (kRecordNameAt + name.size() + 1) / 2 * 2;
    sector.byte(at, static_cast<unsigned>(length));
    sector.both(at + kRecordExtentAt, 4, extent);
    sector.both(at + kRecordSizeAt, 4, bytes);
    const unsigned date[] = {104, 3, 4, 5,
                             6,   7, 0}; // 4 March 2004: images are the same whenever they are made
    for (std::size_t i = 0; i < std::size(date); ++i)
        sector.byte(at + 18 + i, date[i]);
    sector.byte(at + kRecordFlagsAt, flags);
    sector.both(at + 28, 2, 1);
    sector.byte(at + kRecordNameLengthAt, static_cast<unsigned>(name.size()));
    sector.text(at + kRecordNameAt, name);
    return at + length;
}

Sector primaryDescriptor(const DiscContents& contents) {
    Sector sector;
    sector.byte(0, kPrimaryDescriptor);
    sector.text(1, kStandardId);
    sector.byte(6, 1);
    sector.field(8, 32, "PLAYSTATION");
    sector.field(kLabelAt, kLabelBytes, contents.label);
    sector.both(80, 4, sectorsOf(contents.size));
    sector.both(120, 2, 1); // discs in the set
    sector.both(124, 2, 1); // number of this disc
    sector.both(kBlockSizeAt, 2, kSectorBytes);
    sector.both(132, 4, kPathTableBytes);
    sector.little(140, 4, kLittlePathTableSector);
    sector.big(148, 4, kBigPathTableSector);
    putRecord(sector, kRootRecordAt, std::string_view("\0", 1), kRootSector, kSectorBytes, kDirectoryFlag);
    sector.field(190, 128 * 4 + 37 * 3, ""); // set, publisher, preparer, application and three files: none
    for (std::size_t at = 813; at < 813 + 4 * 17; at += 17)
        sector.text(at, "0000000000000000"); // four dates, none given
    sector.byte(881, 1);
    return sector;
}

Sector terminator() {
    Sector sector;
    sector.byte(0, kDescriptorSetEnd);
    sector.text(1, kStandardId);
    sector.byte(6, 1);
    return sector;
}

/// The root folder is the only one.
Sector pathTable(bool bigEndian) {
    Sector sector;
    sector.byte(0, 1);
    if (bigEndian) {
        sector.big(2, 4, kRootSector);
        sector.big(6, 2, 1);
    } else {
        sector.little(2, 4, kRootSector);
        sector.little(6, 2, 1);
    }
    return sector;
}

Sector rootDirectory(std::vector<File> files) {
    Sector sector;
    std::size_t at =
        putRecord(sector, 0, std::string_view("\0", 1), kRootSector, kSectorBytes, kDirectoryFlag);
    at = putRecord(sector, at, "\1", kRootSector, kSectorBytes, kDirectoryFlag);
    std::sort(files.begin(), files.end(), [](const File& a, const File& b) { return a.name < b.name; });
    for (const File& file : files)
        at = putRecord(sector, at, file.name, file.sector, file.bytes, 0);
    return sector;
}

void writeMeaningfulBytes(PendingFile& image, const DiscContents& contents) {
    const auto put = [&](std::uint32_t sector, std::span<const char> bytes) {
        image.write(std::uint64_t{sector} * kSectorBytes, bytes);
    };
    const std::vector<File> files = layOutFiles(contents);
    put(kFirstDescriptorSector, primaryDescriptor(contents).bytes());
    put(kTerminatorSector, terminator().bytes());
    put(kLittlePathTableSector, pathTable(false).bytes());
    put(kBigPathTableSector, pathTable(true).bytes());
    put(kRootSector, rootDirectory(files).bytes());
    for (const File& file : files)
        put(file.sector, file.head);
}

} // namespace

void writeDiscHead(const std::filesystem::path& path, const DiscContents& contents) {
    PendingFile image(path, path.string());
    writeMeaningfulBytes(image, contents);
    image.keep();
}

void writeDiscImage(const std::filesystem::path& path, const DiscContents& contents) {
    PendingFile image(path, path.string());
    writeMeaningfulBytes(image, contents);
    image.keep(contents.size);
}

} // namespace simulator

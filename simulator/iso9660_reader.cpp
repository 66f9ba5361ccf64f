#include "iso9660_reader.h"

#include "failure.h"
#include "iso9660.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace simulator {

using namespace iso9660;

namespace {

constexpr std::uint32_t kDescriptorsLookedAt = 16;
constexpr std::uint32_t kLargestDirectory = 1024 * 1024;
constexpr std::uint32_t kLargestText = 64 * 1024;

unsigned char byteAt(const char* bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

std::uint32_t little32(const char* bytes, std::size_t position) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
        value = value << 8 | byteAt(bytes, position + i);
    return value;
}

std::uint32_t little16(const char* bytes, std::size_t position) {
    return byteAt(bytes, position) | static_cast<std::uint32_t>(byteAt(bytes, position + 1)) << 8;
}

/// The label goes into a line of text: what would break the line is replaced.
std::string readLabel(const char* descriptor) {
    std::string label(descriptor + kLabelAt, kLabelBytes);
    label.erase(label.find_last_not_of(std::string_view(" \0", 2)) + 1);
    std::replace_if(
        label.begin(), label.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '"'; },
        '_');
    return label;
}

std::string plainName(std::string name) {
    name.erase(std::min(name.find(';'), name.size()));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return name;
}

} // namespace

Iso9660Reader::Iso9660Reader(ByteSource& image) : image_(image) {
    readPrimaryDescriptor();
}

void Iso9660Reader::refuse() const {
    throw failureOf(image_.subject(), words::kBadIso);
}

void Iso9660Reader::readPrimaryDescriptor() {
    std::array<char, kSectorBytes> sector{};
    for (std::uint32_t i = 0; i < kDescriptorsLookedAt; ++i) {
        const std::uint64_t offset = std::uint64_t{kFirstDescriptorSector + i} * kSectorBytes;
        if (offset + kSectorBytes > image_.size())
            refuse();
        image_.read(offset, sector);
        if (std::string_view(sector.data() + 1, kStandardId.size()) != kStandardId)
            refuse();
        const unsigned char kind = byteAt(sector.data(), 0);
        if (kind == kDescriptorSetEnd)
            refuse();
        if (kind == kPrimaryDescriptor)
            break;
        if (i + 1 == kDescriptorsLookedAt)
            refuse();
    }
    if (little16(sector.data(), kBlockSizeAt) != kSectorBytes)
        refuse();
    label_ = readLabel(sector.data());
    root_.sector = little32(sector.data(), kRootRecordAt + kRecordExtentAt);
    root_.bytes = little32(sector.data(), kRootRecordAt + kRecordSizeAt);
    if (root_.bytes == 0 || root_.bytes > kLargestDirectory)
        refuse();
}

std::string Iso9660Reader::contents(Extent extent, std::uint32_t limit) {
    std::string bytes(std::min(extent.bytes, limit), '\0');
    const std::uint64_t offset = std::uint64_t{extent.sector} * kSectorBytes;
    if (offset + bytes.size() > image_.size())
        refuse();
    image_.read(offset, bytes);
    return bytes;
}

std::optional<Iso9660Reader::Extent> Iso9660Reader::find(const std::string& directory,
                                                         const std::string& name) const {
    for (std::size_t at = 0; at < directory.size();) {
        const char* record = directory.data() + at;
        const std::size_t length = byteAt(record, 0);
        if (length == 0) { // no record crosses a sector's end; the rest of the sector is filled with zeros
            at = (at / kSectorBytes + 1) * kSectorBytes;
            continue;
        }
        if (length <= kRecordNameAt || at + length > directory.size())
            refuse();
        const std::size_t nameLength = byteAt(record, kRecordNameLengthAt);
        if (kRecordNameAt + nameLength > length)
            refuse();
        const bool folder = (byteAt(record, kRecordFlagsAt) & kDirectoryFlag) != 0;
        if (!folder && plainName(std::string(record + kRecordNameAt, nameLength)) == name)
            return Extent{little32(record, kRecordExtentAt), little32(record, kRecordSizeAt)};
        at += length;
    }
    return std::nullopt;
}

std::optional<std::string> Iso9660Reader::file(const std::string& name) {
    const auto found = find(contents(root_, kLargestDirectory), name);
    if (!found)
        return std::nullopt;
    return contents(*found, kLargestText);
}

} // namespace simulator

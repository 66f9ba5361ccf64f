// Where things stand in an ISO 9660 image; shared by the reader and the writer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace simulator::iso9660 {

inline constexpr std::size_t kSectorBytes = 2048;
inline constexpr std::uint32_t kFirstDescriptorSector = 16;
inline constexpr std::string_view kStandardId = "CD001";

inline constexpr unsigned char kPrimaryDescriptor = 1;
inline constexpr unsigned char kDescriptorSetEnd = 255;

// In a primary volume descriptor.
inline constexpr std::size_t kLabelAt = 40;
inline constexpr std::size_t kLabelBytes = 32;
inline constexpr std::size_t kBlockSizeAt = 128;
inline constexpr std::size_t kRootRecordAt = 156;

// In a directory record.
inline constexpr std::size_t kRecordExtentAt = 2;
inline constexpr std::size_t kRecordSizeAt = 10;
inline constexpr std::size_t kRecordFlagsAt = 25;
inline constexpr std::size_t kRecordNameLengthAt = 32;
inline constexpr std::size_t kRecordNameAt = 33;
inline constexpr unsigned char kDirectoryFlag = 2;

} // namespace simulator::iso9660

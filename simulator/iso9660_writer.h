// Writes small real ISO 9660 images (level 1) that look like game discs.
#pragma once

#include "units.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace simulator {

struct DiscContents {
    std::string label;      ///< at most 32 of A-Z, 0-9 and _
    std::string startup;    ///< such as SLUS_123.45; empty: a disc that is no PS2 game
    std::uint64_t size = 0; ///< in bytes, a multiple of 2048, at least `kSmallestDiscBytes`
};

inline constexpr std::uint64_t kSmallestDiscBytes = kMb;

/// Writes only what says something: the file ends behind the last byte that is not zero, and holes lie
/// between. Disc and size agree once the file has been extended to `contents.size`. Throws Failure.
void writeDiscHead(const std::filesystem::path& path, const DiscContents& contents);

/// A whole image of `contents.size` bytes, sparse where the file system can.
void writeDiscImage(const std::filesystem::path& path, const DiscContents& contents);

} // namespace simulator

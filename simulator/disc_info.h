// What a disc or image is: its kind, its label, the file that starts its game.
#pragma once

#include "byte_source.h"

#include <string>

namespace simulator {

struct DiscInfo {
    bool dualLayer = false;
    std::string type; ///< "CD" or "DVD"
    std::uint64_t sizeBytes = 0;
    std::string label;
    std::string startup;
};

/// Throws Failure if it is no ISO 9660 image, or no PS2 game.
DiscInfo readDiscInfo(ByteSource& disc);

} // namespace simulator

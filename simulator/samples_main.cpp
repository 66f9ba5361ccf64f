// Makes a folder of sample images to play with: real ISO 9660 images that take next to no room.
#include "iso9660_writer.h"
#include "os.h"

#include <filesystem>
#include <iostream>

namespace {

using simulator::kMb;

struct Sample {
    const char* file;
    simulator::DiscContents contents;
};

const Sample kSamples[] = {
    {"cd-game.iso", {"SALT_AND_SAND", "SLUS_990.51", 64 * kMb}},
    {"DVD game.iso", {"EVENING_FERRY", "SLES_990.52", 1100 * kMb}}, // the blank in the name wants quotes
    {"dual-layer.iso", {"LONG_WINTER", "SCES_990.53", 5200 * kMb}},
    {"no-label.iso", {"", "SLPM_990.54", 128 * kMb}},
    {"not-a-game.iso", {"PHOTOS", "", 32 * kMb}},
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: tarnwell-samples FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = simulator::os::pathFromText(argv[1]);
        std::filesystem::create_directories(folder);
        for (const auto& [file, contents] : kSamples) {
            if (!std::filesystem::exists(folder / file))
                simulator::writeDiscImage(folder / file, contents);
        }
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << "\n";
        return 1;
    }
    return 0;
}

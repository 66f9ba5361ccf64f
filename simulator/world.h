// Everything that the simulated tool can see: the disks and drives of this machine, the consoles on the
// network.
#pragma once

#include "byte_source.h"
#include "disk.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

struct Drive {
    std::string name;   ///< "cd0:"
    std::string letter; ///< "D:", by the drive's place among the others
    std::filesystem::path disc;
    std::uint64_t discBytes = 0; ///< 0: as large as its image
    bool loaded = false;

    /// Throws Failure if there is no disc.
    ByteSource open() const;
    /// Empty without a readable disc.
    std::optional<std::uint64_t> discSize() const;
};

/// The state folder; see README.md for its layout. Nothing is kept in memory, so users may edit it at any
/// time.
class World {
public:
    explicit World(std::filesystem::path folder) : folder_(std::move(folder)) {}

    const std::filesystem::path& folder() const { return folder_; }

    std::vector<Disk> localDisks() const;
    std::vector<Drive> drives() const;

    /// "hdd1:", "hdd1" or the address of a console. Throws Failure if it is not there or does not answer.
    Disk device(const std::string& name) const;
    /// By either name ("cd0:", "cd0", "D:"); empty if it is none.
    std::optional<Drive> drive(const std::string& name) const;

    /// The disc in a drive of this name, else the image file of this name. Throws Failure.
    ByteSource openDisc(const std::string& name) const;

    /// A console that was told to power off stays off.
    void switchOff(const std::string& address) const;

private:
    Disk console(const std::string& address) const;

    std::filesystem::path folder_;
};

/// "hdd1:" or "hdd1", with any number.
bool isLocalDiskName(const std::string& name);
/// Four numbers with dots between.
bool isNetworkAddress(const std::string& name);

} // namespace simulator

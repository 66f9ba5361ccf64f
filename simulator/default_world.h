// The world that a newcomer finds.
#pragma once

#include "world.h"

namespace simulator {

/// Opens the world in this folder. If there is none yet, makes one with a few disks, drives, discs and a
/// console.
World openWorld(const std::filesystem::path& folder);

} // namespace simulator

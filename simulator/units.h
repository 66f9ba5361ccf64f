// Sizes as the tool counts them.
#pragma once

#include <cstdint>

namespace simulator {

inline constexpr std::uint64_t kKb = 1024;
inline constexpr std::uint64_t kMb = 1024 * kKb;

} // namespace simulator

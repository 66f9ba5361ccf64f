#pragma once

#include <cstdint>
#include <random>

namespace tarnwell::test {

/// The same numbers for the same seed, on every system.
class Random {
public:
    explicit Random(std::uint32_t seed) : engine_(seed) {}

    int below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }

    template <class List>
    const auto& of(const List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937 engine_;
};

} // namespace tarnwell::test

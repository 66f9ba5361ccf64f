#include "transfer.h"

#include "units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace simulator {

using std::chrono::steady_clock;

namespace {

constexpr std::size_t kBlockBytes = 256 * kKb;

bool allZero(std::span<const char> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

} // namespace

void Transfer::copy(ByteSource& source, PendingFile& target) {
    start_ = steady_clock::now();
    size_ = source.size();
    output_.progress("  0%");
    for (int percent = 1; percent <= 100; ++percent) {
        const std::uint64_t end = size_ * static_cast<unsigned>(percent) / 100;
        copyRange(source, target, copied_, end);
        copied_ = end;
        conduct_.reached(percent);
        if (percent < 100)
            output_.progress(progressText(percent));
    }
    target.keep(size_);
}

void Transfer::announceEnd() {
    output_.progress(progressText(100));
}

void Transfer::copyRange(ByteSource& source, PendingFile& target, std::uint64_t from, std::uint64_t to) {
    std::vector<char> block(kBlockBytes);
    while (from < to) {
        const std::span<char> part(block.data(), std::min<std::uint64_t>(kBlockBytes, to - from));
        source.read(from, part);
        if (allZero(part)) {
            // Zeros are left out: the target gets its full size at the end, and holes cost neither time nor
            // room.
            from = std::clamp(source.nextData(from + part.size()), from + part.size(), to);
        } else {
            target.write(from, part);
            from += part.size();
        }
        conduct_.keepPace(from, start_);
    }
}

std::string Transfer::progressText(int percent) const {
    const std::chrono::duration<double> elapsed = steady_clock::now() - start_;
    const double bytesPerSecond = static_cast<double>(copied_) / std::max(elapsed.count(), 0.001);
    const double secondsLeft = static_cast<double>(size_ - copied_) / std::max(bytesPerSecond, 1.0);
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%3d%%, %.0f min remaining, %.2f MB/sec", percent,
                  std::ceil(secondsLeft / 60.0), bytesPerSecond / static_cast<double>(kMb));
    return text.data();
}

} // namespace simulator

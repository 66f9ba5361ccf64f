#include "conduct.h"

#include "failure.h"

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace simulator {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

/// How late an interrupt may be noticed.
constexpr milliseconds kLongestNap{10};
constexpr int kExitCodeOfSuddenEnd = 1;

} // namespace

void Conduct::begin(bool copies) {
    waitUntil(steady_clock::now() + milliseconds(behaviour_.startDelayMs));
    if (!behaviour_.notice.empty())
        output_.line(behaviour_.notice);
    printNoise();
    printFlood(copies);
    output_.flush();
    reached(0);
}

void Conduct::reached(int percent) {
    if (percent > 0)
        waitUntil(steady_clock::now() + milliseconds(behaviour_.delayMsPerStep));
    checkInterrupt();
    if (behaviour_.exitAtPercent == percent)
        std::_Exit(behaviour_.exitCode.value_or(kExitCodeOfSuddenEnd));
    if (!behaviour_.failure.empty() && behaviour_.failAtPercent == percent)
        throw Failure(behaviour_.failure);
    if (behaviour_.hangAtPercent == percent)
        waitUntil(steady_clock::time_point::max());
}

void Conduct::keepPace(std::uint64_t bytes, steady_clock::time_point start) {
    checkInterrupt();
    if (behaviour_.bytesPerSecond == 0)
        return;
    const std::chrono::duration<double> due(static_cast<double>(bytes) /
                                            static_cast<double>(behaviour_.bytesPerSecond));
    waitUntil(start + std::chrono::duration_cast<steady_clock::duration>(due));
}

void Conduct::checkInterrupt() const {
    if (os::interrupted() && !behaviour_.ignoresInterrupt)
        throw Interrupted();
}

void Conduct::waitUntil(steady_clock::time_point moment) const {
    for (;;) {
        const auto now = steady_clock::now();
        if (now >= moment)
            return;
        checkInterrupt();
        std::this_thread::sleep_for(std::min<steady_clock::duration>(kLongestNap, moment - now));
    }
}

void Conduct::printNoise() {
    std::string noise(static_cast<std::size_t>(behaviour_.noiseBytes), '\0');
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>(i & 0xFF);
    output_.raw(noise);
}

void Conduct::printFlood(bool copies) {
    for (int i = 0; i < behaviour_.floodLines; ++i) {
        checkInterrupt();
        if (copies)
            output_.progress("  0%, 1 min remaining, 1.00 MB/sec");
        else
            output_.line("Line " + std::to_string(i + 1));
    }
}

} // namespace simulator

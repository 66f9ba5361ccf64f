#include "output.h"

#include "behaviour.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace simulator {

namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr std::size_t kWriteBytes = 4096;

} // namespace

Output::Output(const Behaviour& behaviour) : behaviour_(behaviour) {}

void Output::line(const std::string& text) {
    gathered_ += text + kLineEnd;
    if (gathered_.size() >= kWriteBytes)
        flush();
}

void Output::progress(const std::string& text) {
    raw(text + "\r");
}

void Output::failure(const std::string& text) {
    flush();
    print(text + kLineEnd, os::Stream::Error);
}

void Output::raw(std::string_view bytes) {
    flush();
    print(bytes, os::Stream::Output);
}

void Output::flush() {
    print(gathered_, os::Stream::Output);
    gathered_.clear();
}

void Output::print(std::string_view bytes, os::Stream stream) {
    if (behaviour_.silent)
        return;
    if (behaviour_.cutAfter)
        bytes = bytes.substr(0, *behaviour_.cutAfter - std::min(*behaviour_.cutAfter, written_));
    const auto& splits = behaviour_.splitAfter;
    while (!bytes.empty()) {
        while (nextSplit_ < splits.size() && splits[nextSplit_] <= written_)
            ++nextSplit_;
        const bool splitAhead = nextSplit_ < splits.size() && splits[nextSplit_] - written_ <= bytes.size();
        const auto piece = bytes.substr(0, splitAhead ? splits[nextSplit_] - written_ : bytes.size());
        os::write(stream, piece);
        written_ += piece.size();
        bytes.remove_prefix(piece.size());
        if (splitAhead)
            std::this_thread::sleep_for(std::chrono::milliseconds(behaviour_.splitPauseMs));
    }
}

} // namespace simulator

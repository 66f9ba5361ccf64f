#include "output.h"

#include "behaviour.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace simulator {

namespace {

constexpr const char* kLineEnd = "\r\n";

} // namespace

Output::Output(const Behaviour& behaviour) : behaviour_(behaviour) {}

void Output::line(const std::string& text) {
    raw(text + kLineEnd);
}

void Output::progress(const std::string& text) {
    raw(text + "\r");
}

void Output::failure(const std::string& text) {
    raw(text + kLineEnd, os::Stream::Error);
}

void Output::raw(std::string_view bytes, os::Stream stream) {
    if (behaviour_.silent)
        return;
    if (behaviour_.cutAfter)
        bytes = bytes.substr(0, *behaviour_.cutAfter - std::min(*behaviour_.cutAfter, written_));
    while (!bytes.empty()) {
        const auto& splits = behaviour_.splitAfter;
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

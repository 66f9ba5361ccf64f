// What the tool prints, byte for byte. Like a C program's output on a pipe, plain lines gather and leave in
// one piece; readers rely on getting a short list whole. Progress and failures leave at once.
#pragma once

#include "os.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

struct Behaviour;

class Output {
public:
    explicit Output(const Behaviour& behaviour);

    /// Ended by carriage return and line feed; gathered until `flush`, or until there is a block of them.
    void line(const std::string& text);
    /// Ended by a carriage return alone, so that the next one overwrites it on a console.
    void progress(const std::string& text);
    /// A line on the error stream.
    void failure(const std::string& text);
    void raw(std::string_view bytes);
    void flush();

private:
    void print(std::string_view bytes, os::Stream stream);

    const Behaviour& behaviour_;
    std::string gathered_;
    std::size_t written_ = 0;
    std::size_t nextSplit_ = 0;
};

} // namespace simulator

// Reads the little that matters of an ISO 9660 image: its label and files in its root folder.
#pragma once

#include "byte_source.h"

#include <cstdint>
#include <optional>
#include <string>

namespace simulator {

/// Nothing in the image is believed: every position is checked against the image's size, every length has a
/// limit, and no folder but the root is entered. What breaks the format throws Failure.
class Iso9660Reader {
public:
    explicit Iso9660Reader(ByteSource& image);

    const std::string& label() const { return label_; }
    /// The beginning of a file in the root folder, found whatever its case and version; empty if there is
    /// none.
    std::optional<std::string> file(const std::string& name);

private:
    struct Extent {
        std::uint32_t sector = 0;
        std::uint32_t bytes = 0;
    };

    void readPrimaryDescriptor();
    std::optional<Extent> find(const std::string& directory, const std::string& name) const;
    std::string contents(Extent extent, std::uint32_t limit);
    [[noreturn]] void refuse() const;

    ByteSource& image_;
    std::string label_;
    Extent root_;
};

} // namespace simulator

// Bytes to be read: an image file, a disc in a drive, the data of an installed game.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

namespace simulator {

/// A file that may count for more bytes than it has: what is missing behind its end reads as zeros. That way
/// a disc or game of several GB takes no more room than the part of it that says something.
class ByteSource {
public:
    /// `subject` stands in failure texts. A size of 0 means the file's own. Throws Failure if it cannot be
    /// opened.
    ByteSource(std::filesystem::path path, std::string subject, std::uint64_t size = 0);

    std::uint64_t size() const { return size_; }
    const std::string& subject() const { return subject_; }

    /// Fills the whole of `bytes`, with zeros behind the end. Throws Failure if the file cannot be read.
    void read(std::uint64_t offset, std::span<char> bytes);

    /// The first position from `offset` on that may hold something other than zeros, at most `size()`.
    std::uint64_t nextData(std::uint64_t offset) const;

    /// Text for reads that fail; the system's own words otherwise.
    void setReadFailure(std::string text) { readFailure_ = std::move(text); }

private:
    std::filesystem::path path_;
    std::string subject_;
    std::ifstream file_;
    std::uint64_t stored_ = 0;
    std::uint64_t size_ = 0;
    std::string readFailure_;
};

} // namespace simulator

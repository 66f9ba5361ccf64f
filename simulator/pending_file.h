// A file that only stays if its work comes to an end.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

namespace simulator {

/// Created new, never over an existing file; removed again unless `keep` was reached.
class PendingFile {
public:
    /// `subject` stands in failure texts. Throws Failure, "The file exists." among others.
    PendingFile(std::filesystem::path path, std::string subject);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    void write(std::uint64_t offset, std::span<const char> bytes);
    /// The file is whole and stays.
    void keep();
    /// The same; what was never written up to `size` reads as zeros.
    void keep(std::uint64_t size);

private:
    [[noreturn]] void fail() const;

    std::filesystem::path path_;
    std::string subject_;
    std::ofstream file_;
    bool kept_ = false;
};

} // namespace simulator

#include "byte_source.h"

#include "failure.h"
#include "os.h"

#include <algorithm>

namespace simulator {

namespace fs = std::filesystem;

ByteSource::ByteSource(fs::path path, std::string subject, std::uint64_t size)
    : path_(std::move(path)), subject_(std::move(subject)) {
    std::error_code error;
    stored_ = fs::file_size(path_, error);
    if (error)
        throw failureOf(subject_, systemWords(error));
    file_.open(path_, std::ios::binary);
    if (!file_)
        throw failureOf(subject_, systemWords(std::make_error_code(std::errc::permission_denied)));
    size_ = std::max(size, stored_);
    readFailure_ = subject_ + ": " + systemWords(std::make_error_code(std::errc::io_error));
}

void ByteSource::read(std::uint64_t offset, std::span<char> bytes) {
    const std::uint64_t there = offset < stored_ ? stored_ - offset : 0;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(there, bytes.size()));
    if (wanted > 0) {
        file_.clear();
        file_.seekg(static_cast<std::streamoff>(offset));
        if (!file_.read(bytes.data(), static_cast<std::streamsize>(wanted)))
            throw Failure(readFailure_);
    }
    std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(wanted), bytes.end(), '\0');
}

std::uint64_t ByteSource::nextData(std::uint64_t offset) const {
    if (offset >= stored_)
        return size_;
    const std::uint64_t found = os::nextData(path_, offset);
    return found >= stored_ ? size_ : found;
}

} // namespace simulator

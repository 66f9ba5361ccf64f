#include "pending_file.h"

#include "failure.h"
#include "os.h"

#include <cerrno>

namespace simulator {

namespace fs = std::filesystem;

PendingFile::PendingFile(fs::path path, std::string subject)
    : path_(std::move(path)), subject_(std::move(subject)) {
    std::error_code error;
    if (fs::exists(path_, error))
        throw failureOf(subject_, words::kFileExists);
    errno = 0;
    file_.open(path_, std::ios::binary);
    if (!file_) {
        kept_ = true; // nothing of ours to remove
        fail();
    }
    os::markSparse(path_);
}

PendingFile::~PendingFile() {
    if (kept_)
        return;
    file_.close();
    std::error_code ignored;
    fs::remove(path_, ignored);
}

void PendingFile::write(std::uint64_t offset, std::span<const char> bytes) {
    errno = 0;
    file_.seekp(static_cast<std::streamoff>(offset));
    if (!file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        fail();
}

void PendingFile::keep() {
    errno = 0;
    file_.close();
    if (!file_)
        fail();
    kept_ = true;
}

void PendingFile::keep(std::uint64_t size) {
    errno = 0;
    if (!file_.flush())
        fail();
    std::error_code error;
    fs::resize_file(path_, size, error);
    if (error)
        throw failureOf(subject_, systemWords(error));
    keep();
}

void PendingFile::fail() const {
    throw failureOf(subject_, systemWords({errno, std::generic_category()}));
}

} // namespace simulator

#include "os.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace simulator::os {

namespace {

volatile std::sig_atomic_t interruptCame = 0;

void noteInterrupt(int) {
    interruptCame = 1;
}

} // namespace

void prepareProcess() {
    struct sigaction action {};
    action.sa_handler = noteInterrupt;
    // No SA_RESTART: a write into a full pipe ends when the interrupt comes.
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, nullptr);
}

bool interrupted() {
    return interruptCame != 0;
}

void write(Stream stream, std::string_view bytes) {
    const int descriptor = stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
    while (!bytes.empty()) {
        const ssize_t taken = ::write(descriptor, bytes.data(), bytes.size());
        if (taken >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(taken));
        else if (errno != EINTR || interrupted())
            return;
    }
}

std::filesystem::path executableFolder(const char* commandName) {
    std::error_code error;
    auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        program = std::filesystem::weakly_canonical(commandName, error);
    return program.parent_path();
}

std::filesystem::path pathFromText(const std::string& text) {
    return text;
}

std::uint64_t nextData(const std::filesystem::path& path, std::uint64_t offset) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return offset;
    const off_t found = lseek(descriptor, static_cast<off_t>(offset), SEEK_DATA);
    const bool onlyHoles = found < 0 && errno == ENXIO;
    close(descriptor);
    if (onlyHoles)
        return std::numeric_limits<std::uint64_t>::max();
    return found < 0 ? offset : static_cast<std::uint64_t>(found);
}

void markSparse(const std::filesystem::path&) {}

long processId() {
    return getpid();
}

} // namespace simulator::os

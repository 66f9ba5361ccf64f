#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tarnwell::test {

/// While this lives, no file of this process can take in more than a few bytes, as on a disk that is full.
class FullDisk {
public:
    FullDisk() : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{kBytesLeft, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    static constexpr rlim_t kBytesLeft = 20;
    void (*const signal_)(int);
    rlimit before_{};
};

} // namespace tarnwell::test

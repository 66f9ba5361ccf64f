// Copies bytes and tells how far it has come.
#pragma once

#include "byte_source.h"
#include "conduct.h"
#include "pending_file.h"

namespace simulator {

/// Copies all of `source`, printing a progress line at each percent but the last. The 100% is for
/// `announceEnd`, once the result is safe: whoever reads it takes the work for done.
class Transfer {
public:
    Transfer(Conduct& conduct, Output& output) : conduct_(conduct), output_(output) {}

    void copy(ByteSource& source, PendingFile& target);
    void announceEnd();

private:
    void copyRange(ByteSource& source, PendingFile& target, std::uint64_t from, std::uint64_t to);
    std::string progressText(int percent) const;

    Conduct& conduct_;
    Output& output_;
    std::chrono::steady_clock::time_point start_{};
    std::uint64_t size_ = 0;
    std::uint64_t copied_ = 0;
};

} // namespace simulator

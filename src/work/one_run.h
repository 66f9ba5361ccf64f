#pragma once

namespace tarnwell {

/// The queue and Install Now share one of these flags: a run begins only when the handler of the last has
/// ended, its end steps included. One that comes too early is false, and does nothing.
class OneRun {
public:
    explicit OneRun(bool& underWay) : underWay_(underWay), first_(!underWay) { underWay_ = true; }
    ~OneRun() {
        if (first_)
            underWay_ = false;
    }
    OneRun(const OneRun&) = delete;
    OneRun& operator=(const OneRun&) = delete;

    explicit operator bool() const { return first_; }

private:
    bool& underWay_;
    const bool first_;
};

} // namespace tarnwell

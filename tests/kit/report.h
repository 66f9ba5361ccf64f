#pragma once

#include "kit/test_run.h"

namespace tarnwell::kit {

/// What a run of the tests has shown: a line a program, and behind them what failed and what was skipped.
class Report {
public:
    /// Begins with the lines of `head`.
    explicit Report(const QStringList& head) : summary_(head) {}

    /// Returns its line.
    QString add(const ListedTest& test, const TestRun& run);
    /// And at least one was run.
    bool allPassed() const { return passed_ == programs_ && programs_ > 0; }
    /// One line.
    QString result() const;
    /// Throws std::runtime_error if that cannot be done.
    void save(const QString& file) const;

private:
    QStringList summary_, details_;
    int programs_ = 0, passed_ = 0;
    double seconds_ = 0;
};

} // namespace tarnwell::kit

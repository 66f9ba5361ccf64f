#pragma once

#include <QString>

#include <vector>

namespace tarnwell::bench {

/// One line of the table. With `against` the aim is about the ratio, otherwise about the measured value.
struct Figure {
    QString what;
    double measured = 0; ///< 0 if it could not be measured
    const char* unit = "";
    double against = 0;
    double atMost = 0, atLeast = 0; ///< the aim: one of the two
};

/// Prints each figure as soon as it is known.
class Report {
public:
    void printHeadings() const;
    void add(const Figure& figure);
    /// Whether every figure so far could be measured.
    bool complete() const { return complete_; }

private:
    bool complete_ = true;
};

/// 0 without values.
double median(std::vector<double> values);

} // namespace tarnwell::bench

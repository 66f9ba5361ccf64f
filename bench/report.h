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
    std::vector<double> ratios{}; ///< of runs side by side; without them the ratio is that of the two values
};

/// Of runs in turns, one and the other: a machine that is slower for a while is so for both of a pair.
Figure pairedFigure(const QString& what, const char* unit, const std::vector<double>& own,
                    const std::vector<double>& other, double atMost);

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
/// The value with that share of the others below it, from 0 to 1; 0 without values.
double quantile(std::vector<double> values, double share);

} // namespace tarnwell::bench

#include "report.h"

#include <algorithm>
#include <cstdio>

namespace tarnwell::bench {

namespace {

void printLine(const QString& what, const QString& measured, const QString& against, const QString& ratio,
               const QString& aim, const QString& verdict) {
    std::printf("%-46s %15s %9s %18s  %-22s %s\n", qPrintable(what), qPrintable(measured),
                qPrintable(against), qPrintable(ratio), qPrintable(aim), qPrintable(verdict));
    std::fflush(stdout);
}

QString number(double value) {
    return QString::number(value, 'f', value < 10 ? 2 : value < 1000 ? 1 : 0);
}

QString withUnit(double value, const char* unit) {
    return number(value) + ' ' + unit;
}

/// Between which half of the ratios lie.
QString spreadOf(const std::vector<double>& ratios) {
    return ratios.size() < 4
               ? QString()
               : " (" + number(quantile(ratios, 0.25)) + '-' + number(quantile(ratios, 0.75)) + ')';
}

} // namespace

void Report::printHeadings() const {
    printLine("what", "measured", "against", "ratio", "aim", "");
}

void Report::add(const Figure& figure) {
    if (!(figure.measured > 0)) {
        complete_ = false;
        printLine(figure.what, "not measured", {}, {}, {}, "FAILED");
        return;
    }
    const bool compared = figure.against > 0;
    const double ratio = figure.ratios.empty() ? figure.measured / figure.against : median(figure.ratios);
    const double judged = compared ? ratio : figure.measured;
    const bool met = figure.atMost > 0 ? judged <= figure.atMost : judged >= figure.atLeast;
    const double limit = figure.atMost > 0 ? figure.atMost : figure.atLeast;
    const QString aim = (figure.atMost > 0 ? "at most " : "at least ") +
                        (compared ? number(limit) + 'x' : withUnit(limit, figure.unit));
    const char* verdict = met ? "ok" : figure.atMost > 0 ? "over" : "under";
    printLine(figure.what, withUnit(figure.measured, figure.unit),
              compared ? withUnit(figure.against, figure.unit) : QString(),
              compared ? number(judged) + 'x' + spreadOf(figure.ratios) : QString(), aim, verdict);
}

Figure pairedFigure(const QString& what, const char* unit, const std::vector<double>& own,
                    const std::vector<double>& other, double atMost) {
    Figure figure{
        .what = what, .measured = median(own), .unit = unit, .against = median(other), .atMost = atMost};
    for (std::size_t i = 0; i < std::min(own.size(), other.size()); ++i)
        figure.ratios.push_back(own[i] / other[i]);
    return figure;
}

double median(std::vector<double> values) {
    return quantile(std::move(values), 0.5);
}

double quantile(std::vector<double> values, double share) {
    if (values.empty())
        return 0;
    const auto place =
        values.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

} // namespace tarnwell::bench

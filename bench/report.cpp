#include "report.h"

#include <algorithm>
#include <cstdio>

namespace tarnwell::bench {

namespace {

void printLine(const QString& what, const QString& measured, const QString& against, const QString& ratio,
               const QString& aim, const QString& verdict) {
    std::printf("%-46s %15s %9s %6s  %-22s %s\n", qPrintable(what), qPrintable(measured), qPrintable(against),
                qPrintable(ratio), qPrintable(aim), qPrintable(verdict));
    std::fflush(stdout);
}

QString number(double value) {
    return QString::number(value, 'f', value < 10 ? 2 : value < 1000 ? 1 : 0);
}

QString withUnit(double value, const char* unit) {
    return number(value) + ' ' + unit;
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
    const double judged = compared ? figure.measured / figure.against : figure.measured;
    const bool met = figure.atMost > 0 ? judged <= figure.atMost : judged >= figure.atLeast;
    const double limit = figure.atMost > 0 ? figure.atMost : figure.atLeast;
    const QString aim = (figure.atMost > 0 ? "at most " : "at least ") +
                        (compared ? number(limit) + 'x' : withUnit(limit, figure.unit));
    const char* verdict = met ? "ok" : figure.atMost > 0 ? "over" : "under";
    printLine(figure.what, withUnit(figure.measured, figure.unit),
              compared ? withUnit(figure.against, figure.unit) : QString(),
              compared ? number(judged) + 'x' : QString(), aim, verdict);
}

double median(std::vector<double> values) {
    if (values.empty())
        return 0;
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace tarnwell::bench

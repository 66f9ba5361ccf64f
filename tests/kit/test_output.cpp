#include "kit/test_output.h"

namespace tarnwell::kit {

TestOutput read(const QStringList& lines) {
    TestOutput result;
    QStringList running;
    const auto keep = [&] {
        result.noteworthy += running;
        running.clear();
    };
    for (const QString& line : lines) {
        const bool begins = line.startsWith("[ RUN      ] ");
        if (begins)
            keep();
        // The summary at the end names tests once more, when none is running.
        if (begins || !running.isEmpty())
            running += line;
        if (running.isEmpty())
            continue;
        if (line.startsWith("[       OK ] ")) {
            ++result.passed;
            running.clear();
        } else if (line.startsWith("[  FAILED  ] ")) {
            ++result.failed;
            keep();
        } else if (line.startsWith("[  SKIPPED ] ")) {
            ++result.skipped;
            keep();
        }
    }
    keep();
    return result;
}

} // namespace tarnwell::kit

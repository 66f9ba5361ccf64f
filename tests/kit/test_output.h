#pragma once

#include <QStringList>

namespace tarnwell::kit {

/// What the output of a test program tells besides success.
struct TestOutput {
    int passed = 0, failed = 0, skipped = 0;
    QStringList
        noteworthy; ///< all that the tests printed which failed, were skipped, or did not come to an end
};

TestOutput read(const QStringList& lines);

} // namespace tarnwell::kit

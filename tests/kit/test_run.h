#pragma once

#include "kit/listed_test.h"

#include <QDir>

namespace tarnwell::kit {

struct TestRun {
    QString trouble; ///< why it has not passed; empty if it has
    double seconds = 0;
    QStringList output; ///< its lines
};

/// Runs a program that lies beside this one, to its end or to the end of its time. The folder is its current
/// one and keeps its output.
TestRun run(const ListedTest& test, const QDir& folder);

} // namespace tarnwell::kit

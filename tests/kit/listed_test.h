#pragma once

#include <QStringList>

namespace tarnwell::kit {

/// A test program as a line of the kit's list has it: SECONDS [VARIABLE=VALUE]... PROGRAM [ARGUMENT]...
struct ListedTest {
    int seconds = 0; ///< after which it is ended by force
    QStringList environment;
    QString program; ///< its name, which the report knows it by
    QStringList arguments;
};

/// Throws std::runtime_error if the line is none of these.
ListedTest listedTest(const QString& line);

} // namespace tarnwell::kit

#include "kit/listed_test.h"

#include <stdexcept>

namespace tarnwell::kit {

ListedTest listedTest(const QString& line) {
    QStringList words = line.simplified().split(' ');
    ListedTest test;
    test.seconds = words.takeFirst().toInt();
    while (!words.isEmpty() && words.first().contains('='))
        test.environment += words.takeFirst();
    if (test.seconds <= 0 || words.isEmpty())
        throw std::runtime_error("not a test: " + line.toStdString());
    test.program = words.takeFirst();
    test.arguments = words;
    return test;
}

} // namespace tarnwell::kit

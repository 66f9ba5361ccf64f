/// A program that starts a child and ends while that runs: parent_helper drop-child|keep-child COMMAND

#include "platform/helpers.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    auto child = tarnwell::test::startProgram(arguments.value(2));
    if (!child || !tarnwell::test::readUntil(*child, "ready\n"))
        return 1;
    if (arguments.value(1) == "drop-child")
        child.reset();
    return 0;
}

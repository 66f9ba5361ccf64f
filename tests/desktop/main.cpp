#include "desktop/background_program.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    // Nobody's real bus is to be reached, whatever a test forgets. A program knows one bus of the machine for
    // all its life, so this one serves all tests.
    const tarnwell::test::MessageBus machine;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", machine.address());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    return RUN_ALL_TESTS();
}

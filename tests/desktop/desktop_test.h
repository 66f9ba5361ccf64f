#pragma once

#include "desktop/background_program.h"
#include "platform/helpers.h"
#include "support/gtest_qt.h"

namespace tarnwell::test {

/// A display, a bus, and the program on them once `start` is called.
class DesktopTest : public testing::Test {
protected:
    void start() { start(programFolder.path()); }
    void start(const QString& folder, const QString& helper = builtProgram("desktop_helper")) {
        environment.insert("DISPLAY", display.name());
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        program = std::make_unique<BackgroundProgram>(helper, QStringList(folder), environment);
        EXPECT_TRUE(becomes("window", "shown"));
    }

    QByteArray tell(const QByteArray& order) const {
        program->write(order + '\n');
        return program->line();
    }
    bool becomes(const QByteArray& question, const QByteArray& answer) const {
        return pumpUntil([&] { return tell(question) == answer; });
    }

    static inline const QByteArray kMenu = "Settings && Tools, Minimize, Exit";
    static inline const QByteArray kMenuOverHidden = "Settings && Tools, Maximize, Exit";

    MessageBus bus;
    Display display;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    /// The test's, because the program is ended without a chance to tidy up.
    QTemporaryDir programFolder;
    std::unique_ptr<BackgroundProgram> program;
};

} // namespace tarnwell::test

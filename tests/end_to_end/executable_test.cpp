#include "end_to_end/whole_program.h"
#include "ui/version.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace tarnwell::test {
namespace {

/// A display that nobody looks at.
class InvisibleDisplay {
public:
    InvisibleDisplay() {
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
        while (!number_.endsWith('\n') && server_.waitForReadyRead(30'000))
            number_ += server_.readAllStandardOutput();
    }
    ~InvisibleDisplay() {
        server_.terminate();
        server_.waitForFinished();
    }
    InvisibleDisplay(const InvisibleDisplay&) = delete;
    InvisibleDisplay& operator=(const InvisibleDisplay&) = delete;

    QString name() const { return ':' + number_.trimmed(); }
    bool shows(const QString& title) const {
        return tour::runToEnd("xwininfo", {"-display", name(), "-root", "-tree"}).contains(title);
    }

private:
    QProcess server_;
    QByteArray number_;
};

QByteArray loadedBy(qint64 process) {
    QFile maps(QString("/proc/%1/maps").arg(process));
    return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

/// The program's own file, started as a user would start it.
TEST(Executable, OpensItsWindowAndEndsWhenTheSystemAsksItTo) {
    if (QStandardPaths::findExecutable("Xvfb").isEmpty() ||
        QStandardPaths::findExecutable("xwininfo").isEmpty())
        GTEST_SKIP() << "needs Xvfb and xwininfo";
    const Workbench bench;
    const QString copy = bench.path("tarnwell-gui");
    ASSERT_TRUE(QFile::copy(tour::builtProgram("tarnwell-gui"), copy));
    const InvisibleDisplay display;

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display.name());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(copy);
    ASSERT_TRUE(program.waitForStarted());
    EXPECT_TRUE(comesTrue([&] { return display.shows("Tarnwell GUI v" TARNWELL_VERSION); }));
    EXPECT_TRUE(QFile::exists(bench.path("config.cfg")));
    const QByteArray loaded = loadedBy(program.processId());
    EXPECT_TRUE(loaded.contains("libQt6Widgets"));
    EXPECT_FALSE(loaded.contains("libQt6Network")) << "no page has been asked for";
    program.terminate();
    EXPECT_TRUE(program.waitForFinished()) << "the program did not end";
}

} // namespace
} // namespace tarnwell::test

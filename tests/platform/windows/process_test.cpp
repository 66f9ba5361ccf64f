#include "platform/helpers.h"
#include "platform/native.h"
#include "platform/system_helpers.h"
#include "platform/windows/hidden_start.h"
#include "platform/windows/system.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QTemporaryDir>

namespace tarnwell {
namespace {

std::unique_ptr<ChildProcess> startHelper(const QString& act) {
    return test::startProgram(test::native(test::builtProgram("windows_helper")) + ' ' + act);
}

TEST(ProcessLauncher, TheProgramHasAConsoleThatNobodySees) {
    const auto child = startHelper("console");
    ASSERT_TRUE(child);
    EXPECT_EQ(test::readAll(*child), "console hidden");
}

TEST(ProcessLauncher, TheProgramSeesItsPathInQuotesIfItHasBlanksAndTheRestAsItStands) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("my tools"));
    const QString rest = " command-line  a\\\"b c\"\t\"\" \\ ";
    for (const char* const name : {"my tools/the helper.exe", "helper.exe"}) {
        const QString program = test::native(folder.filePath(name));
        const QString quote = program.contains(' ') ? "\"" : "";
        ASSERT_TRUE(QFile::copy(test::builtProgram("windows_helper"), program));
        const auto child = test::startProgram(program + rest);
        ASSERT_TRUE(child);
        EXPECT_EQ(test::readAll(*child), (quote + program + quote + rest).toUtf8());
    }
}

/// Windows by itself adds one, and finds C:\Program.exe where C:\Program Files\... is meant.
TEST(ProcessLauncher, NoEndingIsAddedToAPath) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(test::builtProgram("windows_helper"), folder.filePath("helper.exe")));
    EXPECT_FALSE(test::startProgram(test::native(folder.filePath("helper")) + " console"));
}

TEST(ProcessLauncher, WhyAProgramCannotBeStartedIsTold) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("no program.exe"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("just words");
    file.close();
    const QString program = test::native(file.fileName());
    QString whyNot;
    EXPECT_FALSE(QtProcessLauncher().start(program + " query", whyNot));
    const QString start = program + " could not be started: ";
    EXPECT_TRUE(whyNot.startsWith(start)) << whyNot.toStdString();
    QString reason = whyNot.mid(start.size());
    EXPECT_TRUE(reason.contains(program))
        << "the system's words for this name the file: " << whyNot.toStdString();
    reason.remove(program); // whose name is a matter of chance
    EXPECT_FALSE(reason.contains("0x") || reason.contains("%1")) << whyNot.toStdString();
}

TEST(ProcessLauncher, TheProgramGetsNothingOfOursButItsStreams) {
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    // The last of many, whose number the child has not given to a handle of its own.
    std::vector<HANDLE> ours(1000);
    std::ranges::generate(ours, [&] { return CreateEventW(&inheritable, FALSE, FALSE, nullptr); });
    const auto child = startHelper("handle " + QString::number(reinterpret_cast<quintptr>(ours.back())));
    std::ranges::for_each(ours, &CloseHandle);
    ASSERT_TRUE(child);
    EXPECT_EQ(test::readAll(*child), "unknown\r\n");
}

TEST(ProcessLauncher, AnInterruptLeavesOurStreamsAlone) {
    const auto streams = [] {
        return std::array{GetStdHandle(STD_INPUT_HANDLE), GetStdHandle(STD_OUTPUT_HANDLE),
                          GetStdHandle(STD_ERROR_HANDLE)};
    };
    const auto before = streams();
    const auto child = test::startChild("farewell");
    ASSERT_TRUE(child);
    const test::Ending ending(*child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    child->interrupt();
    EXPECT_EQ(streams(), before);
}

/// As the tool takes it: in the middle of work, from a folder with any name.
TEST(ProcessLauncher, TheToolIsInterruptedAtItsWork) {
    const QTemporaryDir folder;
    const QString tools = folder.filePath(QString::fromUtf8("my t\xc3\xb6\xc3\xb6ls"));
    ASSERT_TRUE(QDir().mkpath(tools + "/tarnwell-simulator"));
    ASSERT_TRUE(QFile::copy(test::builtProgram("tarnwell"), tools + "/tarnwell.exe"));
    QFile behaviour(tools + "/tarnwell-simulator/behaviour.txt");
    ASSERT_TRUE(behaviour.open(QFile::WriteOnly));
    behaviour.write("notice = at work\nhang_at_percent = 0\n");
    behaviour.close();
    const auto tool = test::startProgram(test::native(tools) + "\\tarnwell.exe query");
    ASSERT_TRUE(tool);
    const test::Ending ending(*tool);
    ASSERT_TRUE(test::readUntil(*tool, "at work"));
    tool->interrupt();
    EXPECT_EQ(test::readAll(*tool), "Interrupted.\r\n");
}

TEST(Processes, AProgramIsAskedToEndByItsWindow) {
    const auto processes = native::makeProcesses();
    const auto child = startHelper("window");
    ASSERT_TRUE(child);
    const test::Ending ending(*child);
    ASSERT_TRUE(test::readUntil(*child, "ready"));
    EXPECT_TRUE(processes->requestClose(child->processId()));
    EXPECT_EQ(test::readAll(*child), "closed\r\n");
}

TEST(Processes, AProgramWithoutAWindowIsLeftAlone) {
    const auto processes = native::makeProcesses();
    const auto child = test::startChild("hang");
    ASSERT_TRUE(child);
    const test::Ending ending(*child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    EXPECT_FALSE(processes->requestClose(child->processId()));
    QtEventPump().pumpFor(100);
    EXPECT_TRUE(child->running());
}

TEST(HiddenStart, TheProgramRunsWithoutAWindow) {
    const QTemporaryDir folder;
    const QString program = folder.filePath("the helper.exe"), told = folder.filePath("told");
    ASSERT_TRUE(QFile::copy(test::builtProgram("windows_helper"), program));
    startHidden(test::native(program), "console \"" + told + '"');
    QFile file(told);
    ASSERT_TRUE(test::pumpUntil([&] { return file.size() > 0; }));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "console hidden");
}

TEST(HiddenStart, AMissingProgramGoesUnnoticed) {
    EXPECT_NO_THROW(startHidden("C:\\missing\\program.exe", ""));
}

} // namespace
} // namespace tarnwell

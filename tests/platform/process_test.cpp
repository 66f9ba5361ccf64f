#include "platform/helpers.h"
#include "platform/system_helpers.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

namespace tarnwell {
namespace {

using test::builtProgram;
using test::Ending;
using test::isGone;
using test::native;
using test::pumpUntil;
using test::readAll;
using test::readUntil;
using test::startChild;

TEST(ProcessLauncher, WhatTheProgramPrintsArrivesWhole) {
    const auto child = startChild("bytes 1000000");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), QByteArray(1'000'000, 'x'));
}

TEST(ProcessLauncher, NothingIsLostWhenTheProgramEndsBeforeItIsRead) {
    const auto child = startChild("bytes 20000");
    ASSERT_TRUE(child);
    ASSERT_TRUE(pumpUntil([&] { return !child->running(); }));
    EXPECT_EQ(readAll(*child), QByteArray(20'000, 'x'));
}

TEST(ProcessLauncher, AReadTakesNoMoreThanItsMaximum) {
    const auto child = startChild("bytes 5000");
    ASSERT_TRUE(child);
    ASSERT_TRUE(pumpUntil([&] { return !child->running(); }));
    EXPECT_EQ(child->read(0).size(), 0);
    EXPECT_EQ(child->read(4096).size(), 4096);
    EXPECT_EQ(child->read(4096).size(), 904);
    EXPECT_EQ(child->read(4096).size(), 0);
}

TEST(ProcessLauncher, ASilentProgramGivesNothing) {
    const auto child = startChild("exit 0");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "");
}

TEST(ProcessLauncher, AFailingProgramIsAProgramThatHasGone) {
    const auto child = startChild("exit 7");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "");
    EXPECT_FALSE(child->running());
}

TEST(ProcessLauncher, WhatACrashingProgramPrintedIsRead) {
    const auto child = startChild("crash");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "before the crash\n");
    EXPECT_FALSE(child->running());
}

TEST(ProcessLauncher, BothStreamsArriveInTheOrderOfPrinting) {
    const auto child = startChild("both-streams");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "1 out\n2 err\n3 out\n4 err\n");
}

TEST(ProcessLauncher, HalfALineIsReadWhileTheProgramRuns) {
    const auto child = startChild("half-line");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    EXPECT_TRUE(readUntil(*child, "half a"));
    EXPECT_TRUE(child->running());
    EXPECT_EQ(child->read(4096), "") << "and a read without anything to read does not block";
}

TEST(ProcessLauncher, BytesArePassedOnAsTheyComeEvenInTheMiddleOfACharacter) {
    const auto child = startChild("split-character");
    ASSERT_TRUE(child);
    QByteArray first;
    ASSERT_TRUE(pumpUntil([&] { return !(first = child->read(4096)).isEmpty(); }));
    EXPECT_EQ(first, "\xC3");
    EXPECT_EQ(readAll(*child), "\xA9\n");
}

TEST(ProcessLauncher, AProgramThatClosesItsOutputLivesOn) {
    const auto child = startChild("close-output");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    EXPECT_TRUE(readUntil(*child, "last words\n"));
    QtEventPump().pumpFor(50);
    EXPECT_TRUE(child->running());
}

TEST(ProcessLauncher, ReadingAndWatchingNeedNoEvents) {
    const auto child = startChild("bytes 200000");
    ASSERT_TRUE(child);
    bool served = false;
    QTimer::singleShot(0, qApp, [&] { served = true; });
    QByteArray output;
    while (child->running()) {
        output += child->read(4096);
        QThread::msleep(1);
    }
    for (QByteArray rest = child->read(4096); !rest.isEmpty(); rest = child->read(4096)) {
        output += rest;
    }
    EXPECT_EQ(output.size(), 200'000);
    EXPECT_FALSE(served) << "nothing but the pump serves events";
    QtEventPump().pump();
}

TEST(ProcessLauncher, StartingServesNoEvents) {
    bool served = false;
    QTimer::singleShot(0, qApp, [&] { served = true; });
    const auto child = startChild("exit 0");
    EXPECT_FALSE(served);
    QtEventPump().pump();
}

TEST(ProcessLauncher, AProgramThatPrintsFasterThanItIsReadWaits) {
    const auto child = startChild("bytes 1000000");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    QtEventPump().pumpFor(300);
    EXPECT_TRUE(child->running()) << "all that it prints lies in our memory";
    EXPECT_EQ(readAll(*child).size(), 1'000'000);
}

TEST(ProcessLauncher, ArgumentsArriveAsTheyWereGrouped) {
    const auto child = startChild("arguments inject \"My Game\" \"\" a\"b c\"d  last ");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "[inject]\n[My Game]\n[]\n[ab cd]\n[last]\n");
}

TEST(ProcessLauncher, TheProgramsPathMayHoldBlanks) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("my tools"));
    const QString tool = folder.filePath("my tools/the tool.exe");
    ASSERT_TRUE(QFile::copy(builtProgram("child_helper"), tool));
    const auto child = test::startProgram(native(tool) + " arguments x y");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "[x]\n[y]\n");
}

TEST(ProcessLauncher, AProgramOfAShorterNameIsNotStartedInItsPlace) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("my tools"));
    const QString tool = folder.filePath("my tools/the tool.exe");
    for (const QString& program : {tool, folder.filePath("my"), folder.filePath("my.exe"),
                                   folder.filePath("my tools/the"), folder.filePath("my tools/the.exe")})
        ASSERT_TRUE(QFile::copy(builtProgram("child_helper"), program));
    const auto child = test::startProgram(native(tool) + " arguments x y");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "[x]\n[y]\n");
}

TEST(ProcessLauncher, TheProgramsPathMayHoldAnyLetters) {
    const QTemporaryDir folder;
    const QString tools = folder.filePath(
        QString::fromUtf8("Sp\xc3\xab\xc3\xaflz\xc3\xbcg \xe3\x82\xb2\xe3\x83\xbc\xe3\x83\xa0"));
    ASSERT_TRUE(QDir().mkpath(tools));
    ASSERT_TRUE(QFile::copy(builtProgram("child_helper"), tools + "/tool.exe"));
    const auto child = test::startProgram(native(tools + "/tool.exe") + " arguments x y");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "[x]\n[y]\n");
}

TEST(ProcessLauncher, TheProgramGetsOurFolderAndEnvironment) {
    qputenv("TARNWELL_TEST_MARK", "inherited");
    const auto child = startChild("surroundings");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), native(QDir::currentPath()).toLocal8Bit() + "\ninherited\n");
}

TEST(ProcessLauncher, WhatCannotBeStartedGivesNothing) {
    const QTemporaryDir folder;
    const auto makeFile = [&](const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        return file.fileName();
    };
    const QString plain = makeFile("plain", "#!/bin/sh\n");
    const QString noProgram = makeFile("no-program", "just words");
    ASSERT_TRUE(QFile::setPermissions(noProgram, QFile::ReadOwner | QFile::ExeOwner));

    EXPECT_FALSE(test::startProgram(folder.filePath("missing") + " query"));
    EXPECT_FALSE(test::startProgram(plain + " query")) << "not executable";
    EXPECT_FALSE(test::startProgram(noProgram + " query"));
    EXPECT_FALSE(test::startProgram(folder.path() + " query"));
    EXPECT_FALSE(test::startProgram(""));
}

TEST(ProcessLauncher, TheProgramReadsWhatIsWrittenToIt) {
    const auto child = startChild("echo-input");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    EXPECT_EQ(child->write("yes\r\n"), 5);
    EXPECT_TRUE(readUntil(*child, "yes\r\n"));
    const QByteArray large(300'000, 'y');
    EXPECT_EQ(child->write(large), large.size());
    qsizetype echoed = 0;
    EXPECT_TRUE(pumpUntil([&] { return (echoed += child->read(65'536).size()) == large.size(); }));
}

TEST(ProcessLauncher, WritingToAProgramThatHasGoneFails) {
    const auto child = startChild("exit 0");
    ASSERT_TRUE(child);
    ASSERT_TRUE(pumpUntil([&] { return !child->running(); }));
    EXPECT_EQ(child->write("too late"), -1);
}

TEST(ProcessLauncher, AnInterruptReachesTheProgramAndItsFarewellIsRead) {
    const auto child = startChild("farewell");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    ASSERT_TRUE(readUntil(*child, "ready\n"));
    child->interrupt();
    EXPECT_EQ(readAll(*child), "interrupted\n");
}

TEST(ProcessLauncher, AnInterruptReachesOneProgramOnly) {
    const auto earlier = startChild("farewell"), child = startChild("farewell");
    ASSERT_TRUE(earlier && child);
    const Ending endings[]{Ending(*earlier), Ending(*child)};
    ASSERT_TRUE(readUntil(*earlier, "ready\n") && readUntil(*child, "ready\n"));
    child->interrupt();
    const auto later = startChild("farewell");
    ASSERT_TRUE(later);
    const Ending ending(*later);
    ASSERT_TRUE(readUntil(*later, "ready\n"));
    EXPECT_EQ(readAll(*child), "interrupted\n");
    QtEventPump().pumpFor(100);
    EXPECT_TRUE(earlier->running());
    EXPECT_TRUE(later->running());
    later->interrupt();
    EXPECT_EQ(readAll(*later), "interrupted\n") << "it has not learnt to ignore it";
    EXPECT_TRUE(earlier->running());
}

TEST(ProcessLauncher, AnInterruptInTheFirstMomentIsNotLost) {
    const auto child = startChild("hang");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    child->interrupt();
    EXPECT_TRUE(pumpUntil([&] { return !child->running(); }));
}

TEST(ProcessLauncher, AProgramMayBeDeafToTheInterrupt) {
    const auto child = startChild("deaf");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    ASSERT_TRUE(readUntil(*child, "ready\n"));
    child->interrupt();
    QtEventPump().pumpFor(100);
    EXPECT_TRUE(child->running());
}

TEST(ProcessLauncher, AnInterruptOfAProgramThatHasGoneDoesNothing) {
    const auto child = startChild("exit 0");
    ASSERT_TRUE(child);
    ASSERT_TRUE(pumpUntil([&] { return !child->running(); }));
    child->interrupt();
    EXPECT_FALSE(child->running());
}

TEST(ProcessLauncher, AnInterruptWorksThoughOurOwnIsIgnored) {
    const test::InterruptIgnored ignored;
    const auto child = startChild("hang");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    ASSERT_TRUE(readUntil(*child, "ready\n"));
    child->interrupt();
    EXPECT_TRUE(pumpUntil([&] { return !child->running(); }));
}

TEST(ProcessLauncher, TheProgramStandsAlone) {
    const auto child = startChild("stands-alone");
    ASSERT_TRUE(child);
    EXPECT_EQ(readAll(*child), "1\n");
}

TEST(ProcessLauncher, AProgramThatHasGoneLeavesNoZombie) {
    const auto child = startChild("exit 0");
    ASSERT_TRUE(child);
    EXPECT_GT(child->processId(), 1);
    ASSERT_TRUE(pumpUntil([&] { return !child->running(); }));
    EXPECT_TRUE(isGone(child->processId()));
    EXPECT_GT(child->processId(), 1) << "its id is still known";
}

TEST(ProcessLauncher, DroppingAProgramNeitherEndsItNorWaitsForIt) {
    auto child = startChild("hang");
    ASSERT_TRUE(child);
    const Ending ending(*child);
    ASSERT_TRUE(readUntil(*child, "ready\n"));
    const qint64 processId = child->processId();
    QElapsedTimer sinceDrop;
    sinceDrop.start();
    child.reset();
    EXPECT_LT(sinceDrop.elapsed(), 500);
    QtEventPump().pumpFor(100);
    EXPECT_FALSE(isGone(processId));
}

TEST(ProcessLauncher, ADroppedProgramMayPrintAsMuchAsItLikesAndLeavesNoZombie) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath("mark");
    auto child = startChild("flood-and-mark \"" + mark + '"');
    ASSERT_TRUE(child);
    const qint64 processId = child->processId();
    child.reset();
    EXPECT_TRUE(pumpUntil([&] { return QFile::exists(mark) && isGone(processId); }));
}

TEST(ProcessLauncher, ADroppedProgramReadsTheEndOfItsInput) {
    auto child = startChild("echo-input");
    ASSERT_TRUE(child);
    const qint64 processId = child->processId();
    child.reset();
    EXPECT_TRUE(pumpUntil([&] { return isGone(processId); }));
}

/// Another program starts the child, drops it or not, and ends; the child must go on, though nobody reads it
/// now.
class ProcessLauncherOfAnotherProgram : public testing::TestWithParam<const char*> {};

TEST_P(ProcessLauncherOfAnotherProgram, TheChildOutlivesIt) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath("mark");
    QProcess program;
    program.start(builtProgram("parent_helper"), {GetParam(), test::childCommand("outlive \"" + mark + '"')});
    ASSERT_TRUE(program.waitForFinished(test::kPatienceMs));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    EXPECT_TRUE(pumpUntil([&] { return QFile::exists(mark); }));
}

INSTANTIATE_TEST_SUITE_P(, ProcessLauncherOfAnotherProgram, testing::Values("drop-child", "keep-child"));

TEST(ProcessLauncher, ManyRunsLeakNothing) {
    readAll(*startChild("bytes 10"));
    QtEventPump().pump();
    const int before = test::openHandles();
    for (int run = 0; run < 50; ++run) {
        const auto child = startChild("bytes 10");
        ASSERT_TRUE(child);
        while (child->running()) {
            QThread::usleep(200);
        }
        ASSERT_EQ(child->read(4096).size(), 10);
    }
    QtEventPump().pump();
    EXPECT_EQ(test::openHandles(), before);
}

} // namespace
} // namespace tarnwell

#include "platform/qt/command_line.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

class SplitCommandLine : public testing::Test {
protected:
    QString file(const QString& name) {
        QString path = folder_.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile made(path);
        EXPECT_TRUE(made.open(QFile::WriteOnly));
        return path;
    }

    QTemporaryDir folder_;
};

TEST_F(SplitCommandLine, TheProgramMayStandAlone) {
    const QString tool = file("tool");
    const auto command = splitCommandLine(tool);
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
    EXPECT_EQ(command->arguments, "");
}

TEST_F(SplitCommandLine, TheProgramsPathMayHoldBlanks) {
    const QString tool = file("my games  and tools/the tool.exe");
    const auto command = splitCommandLine(tool + " query \"two words\" ");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
    EXPECT_EQ(command->arguments, " query \"two words\" ");
}

TEST_F(SplitCommandLine, TheLongestBeginningThatNamesAFileIsTheProgram) {
    file("the");
    file("the good");
    const QString tool = file("the good tool");
    const auto command = splitCommandLine(tool + " x y");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
    EXPECT_EQ(command->arguments, " x y");
}

TEST_F(SplitCommandLine, AnArgumentMayNameAProgramToo) {
    const QString tool = file("my tools/the tool.exe");
    const QString arguments = " extract hdd1: A " + tool + " b \"" + tool + "\" " + tool;
    const auto command = splitCommandLine(tool + arguments);
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
    EXPECT_EQ(command->arguments, arguments);
}

TEST_F(SplitCommandLine, AnArgumentThatStepsBackFromTheToolNamesNoOtherProgram) {
    const QString tool = file("tools/tool.exe"), other = file("other.exe");
    ASSERT_TRUE(QDir(folder_.path()).mkpath("tools/tool.exe x"));
    const auto command = splitCommandLine(tool + " x/../../other.exe");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
}

TEST_F(SplitCommandLine, BlanksAndDotsBehindTheProgramAreNotPartOfIt) {
    const QString tool = file("tool.exe");
    for (const QString arguments : {"  query", " ", " .", " . query", " .. x", "   "}) {
        const auto command = splitCommandLine(tool + arguments);
        ASSERT_TRUE(command);
        EXPECT_EQ(command->program, tool);
        EXPECT_EQ(command->arguments, arguments);
    }
}

TEST_F(SplitCommandLine, AFolderIsNoProgram) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("the"));
    const QString tool = file("the tool");
    const auto command = splitCommandLine(tool + " x");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
}

TEST_F(SplitCommandLine, NoFileNoCommand) {
    EXPECT_FALSE(splitCommandLine(""));
    EXPECT_FALSE(splitCommandLine(" "));
    EXPECT_FALSE(splitCommandLine(folder_.filePath("missing") + " query"));
    EXPECT_FALSE(splitCommandLine(folder_.path() + " query"));
    EXPECT_FALSE(splitCommandLine('"' + file("tool") + "\" query")) << "the program is not quoted";
}

} // namespace
} // namespace tarnwell

#include "platform/posix/command_line.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

TEST(SplitArguments, BlanksAndTabsPartThem) {
    EXPECT_EQ(splitArguments("a b\tc"), QStringList({"a", "b", "c"}));
    EXPECT_EQ(splitArguments("  a \t  b  \t"), QStringList({"a", "b"}));
}

TEST(SplitArguments, NothingIsNoArgument) {
    EXPECT_EQ(splitArguments(""), QStringList());
    EXPECT_EQ(splitArguments(" \t "), QStringList());
}

TEST(SplitArguments, QuotesGroup) {
    EXPECT_EQ(splitArguments("inject \"My Game\" x"), QStringList({"inject", "My Game", "x"}));
    EXPECT_EQ(splitArguments("\"a\tb\""), QStringList({"a\tb"}));
}

TEST(SplitArguments, TwoQuotesAreAnEmptyArgument) {
    EXPECT_EQ(splitArguments("a \"\" b"), QStringList({"a", "", "b"}));
    EXPECT_EQ(splitArguments("\"\""), QStringList({""}));
    EXPECT_EQ(splitArguments("\"\"\"\""), QStringList({""}));
    EXPECT_EQ(splitArguments("\"\" \"\""), QStringList({"", ""}));
}

TEST(SplitArguments, QuotesMayStandInTheMiddleOfAWord) {
    EXPECT_EQ(splitArguments("a\"b c\"d e"), QStringList({"ab cd", "e"}));
    EXPECT_EQ(splitArguments("a\"\"b"), QStringList({"ab"}));
    EXPECT_EQ(splitArguments("\"a\"\"b\""), QStringList({"ab"}));
}

TEST(SplitArguments, AQuoteThatIsNotClosedReachesToTheEnd) {
    EXPECT_EQ(splitArguments("a \"b c  "), QStringList({"a", "b c  "}));
    EXPECT_EQ(splitArguments("a \""), QStringList({"a", ""}));
}

TEST(SplitArguments, NothingIsEscaped) {
    EXPECT_EQ(splitArguments("\"C:\\dir\\\" b"), QStringList({"C:\\dir\\", "b"}));
    EXPECT_EQ(splitArguments("a\\ b 'c d' $x *"), QStringList({"a\\", "b", "'c", "d'", "$x", "*"}));
}

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
    EXPECT_EQ(command->arguments, QStringList());
}

TEST_F(SplitCommandLine, TheProgramsPathMayHoldBlanks) {
    const QString tool = file("my games  and tools/the tool.exe");
    const auto command = splitCommandLine(tool + " query \"two words\" ");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
    EXPECT_EQ(command->arguments, QStringList({"query", "two words"}));
}

TEST_F(SplitCommandLine, TheShortestBeginningThatNamesAFileIsTheProgram) {
    const QString shorter = file("the");
    file("the tool");
    const auto command = splitCommandLine(folder_.filePath("the tool") + " x");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, shorter);
    EXPECT_EQ(command->arguments, QStringList({"tool", "x"}));
}

TEST_F(SplitCommandLine, AFolderIsNoProgram) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("the"));
    const QString tool = file("the tool");
    const auto command = splitCommandLine(tool + " x");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, tool);
}

TEST_F(SplitCommandLine, ALinkToAFileIsAProgram) {
    const QString link = folder_.filePath("link");
    ASSERT_TRUE(QFile::link(file("tool"), link));
    const auto command = splitCommandLine(link + " x");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->program, link);
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

#include "platform/helpers.h"
#include "platform/system_helpers.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QTemporaryDir>

namespace tarnwell {
namespace {

TEST(ProcessLauncher, ABareNameMeansTheWorkingFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    const auto child = test::startProgram("child_helper arguments x");
    EXPECT_FALSE(test::startProgram("sh -c exit")) << "PATH is not searched";
    QDir::setCurrent(before);
    ASSERT_TRUE(child);
    EXPECT_EQ(test::readAll(*child), "[x]\n");
}

TEST(ProcessLauncher, ALinkToAProgramIsAProgram) {
    const QTemporaryDir folder;
    const QString link = folder.filePath("link");
    ASSERT_TRUE(QFile::link(test::builtProgram("child_helper"), link));
    const auto child = test::startProgram(link + " arguments x");
    ASSERT_TRUE(child);
    EXPECT_EQ(test::readAll(*child), "[x]\n");
}

class ProgramThatCannotBeStarted : public testing::Test {
protected:
    QString make(const QByteArray& bytes, QFile::Permissions permissions) const {
        QFile file(folder_.filePath("the tool.exe"));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_TRUE(file.setPermissions(permissions));
        return file.fileName();
    }
    static QString whyNot(const QString& commandLine) {
        QString why;
        EXPECT_FALSE(QtProcessLauncher().start(commandLine, why));
        return why;
    }

private:
    const QTemporaryDir folder_;
};

TEST_F(ProgramThatCannotBeStarted, AFileThatIsNoProgramBringsTheSystemsWords) {
    const QString tool = make("just words", QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(whyNot(tool + " query"), tool + " could not be started: Exec format error.");
}

TEST_F(ProgramThatCannotBeStarted, AFileThatIsNotMarkedAsOneBringsTheWayToMarkIt) {
    const QString tool = make("#!/bin/sh\n", QFile::ReadOwner);
    EXPECT_EQ(whyNot(tool + " query"),
              tool +
                  " could not be started: Permission denied.\r\n"
                  "It is not marked as a program. In a terminal this marks it: chmod +x \"" +
                  tool + '"');
}

TEST_F(ProgramThatCannotBeStarted, AMissingFileIsNamedWithItsCommand) {
    EXPECT_EQ(whyNot("/missing/tool.exe query"), "There is no such program: /missing/tool.exe query");
}

TEST(ProcessLauncher, AnInterruptReachesAProgramBehindAScript) {
    const QTemporaryDir folder;
    QFile script(folder.filePath("script"));
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("#!/bin/sh\n\"$1\" farewell\nexit 0\n");
    script.close();
    ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    const auto child =
        test::startProgram(script.fileName() + " \"" + test::builtProgram("child_helper") + '"');
    ASSERT_TRUE(child);
    const test::Ending ending(*child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    child->interrupt();
    EXPECT_EQ(test::readAll(*child), "interrupted\n");
}

} // namespace
} // namespace tarnwell

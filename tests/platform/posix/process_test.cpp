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
    const auto child = QtProcessLauncher().start("child_helper arguments x");
    EXPECT_FALSE(QtProcessLauncher().start("sh -c exit")) << "PATH is not searched";
    QDir::setCurrent(before);
    ASSERT_TRUE(child);
    EXPECT_EQ(test::readAll(*child), "[x]\n");
}

TEST(ProcessLauncher, AnInterruptReachesAProgramBehindAScript) {
    const QTemporaryDir folder;
    QFile script(folder.filePath("script"));
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("#!/bin/sh\n\"$1\" farewell\nexit 0\n");
    script.close();
    ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    const auto child =
        QtProcessLauncher().start(script.fileName() + " \"" + test::builtProgram("child_helper") + '"');
    ASSERT_TRUE(child);
    const test::Ending ending(*child);
    ASSERT_TRUE(test::readUntil(*child, "ready\n"));
    child->interrupt();
    EXPECT_EQ(test::readAll(*child), "interrupted\n");
}

} // namespace
} // namespace tarnwell

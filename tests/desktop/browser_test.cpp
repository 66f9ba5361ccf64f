#include "desktop/desktop_test.h"

#include <QFile>

namespace tarnwell::test {

namespace {

class Browser : public DesktopTest {
protected:
    /// What opens pages on a desktop, first on PATH; it only writes down what it was asked for.
    void installOpener() {
        QFile script(folder.filePath("xdg-open"));
        EXPECT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\necho \"$*\" > \"$0.new\"\nmv \"$0.new\" \"$0.asked\"\n");
        script.close();
        EXPECT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        environment.insert("PATH", folder.path() + ':' + environment.value("PATH"));
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Browser, IsAskedForThePage) {
    installOpener();
    start();
    tell("open https://tarnwell.example.org/");
    QFile asked(folder.filePath("xdg-open.asked"));
    ASSERT_TRUE(pumpUntil([&] { return asked.exists(); }));
    ASSERT_TRUE(asked.open(QFile::ReadOnly));
    EXPECT_EQ(asked.readAll().trimmed(), "https://tarnwell.example.org/");
}

} // namespace tarnwell::test
